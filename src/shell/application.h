#pragma once

#include <QApplication>

namespace store {
class Error;
}

namespace talor {

class Exercice;

/// The process. A store error that nothing has trapped ends here: its text is shown, the exercise is closed, which
/// rolls back what was not committed, and the process ends with code 1.
class Application : public QApplication
{
public:
    Application(int& argc, char** argv);

    /// The exercise to close in that case.
    void suivre(Exercice* exercice) { m_exercice = exercice; }
    [[noreturn]] void echouer(const store::Error& erreur);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    Exercice* m_exercice = nullptr;
    bool m_echoue = false;
};

} // namespace talor
