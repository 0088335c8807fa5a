#include "bench/cases.h"
#include "bench/exercise.h"
#include "bench/raw.h"
#include "bench/table.h"
#include "platform/controls/message.h"
#include "sales/j_vente.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int linesOfTheBordereau = 500;
constexpr int linesTyped = 100;
constexpr int linesUnmeasured = 10; ///< until what the keys touch is in memory
constexpr QSize windowSize(1350, 725);

/// One line as its keys: five values, each with its Enter; the last Enter takes the line.
std::vector<QString> keysOf(Dice& dice)
{
    const QString values[] = {QString::number(1 + dice.below(clients)), QString::number(1 + dice.below(fish)),
                              QString::number(1 + dice.below(12)), QString::number(dice.between(2, 90, 0.5)),
                              QString::number(dice.between(80, 2400, 10))};
    std::vector<QString> keys;
    for (const QString& value : values) {
        for (const QChar c : value)
            keys.push_back(c);
        keys.push_back(u"\r"_s);
    }
    return keys;
}

/// Presses a key where the focus is; returns once the window shows its effect. Seconds.
double answered(const QString& key)
{
    const int code = key == u"\r" ? int(Qt::Key_Return) : key[0].unicode();
    const Stopwatch watch;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, Qt::NoModifier, key);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    QApplication::processEvents();
    return watch.seconds();
}

struct Answers
{
    std::vector<double> keys;  ///< every key but those that take a line
    std::vector<double> lines; ///< those
};

Answers typeLines()
{
    Dice dice(23);
    Answers answers;
    for (int line = 0; line < linesUnmeasured + linesTyped; ++line) {
        const std::vector<QString> keys = keysOf(dice);
        for (size_t i = 0; i < keys.size(); ++i) {
            const double seconds = answered(keys[i]);
            if (line >= linesUnmeasured)
                (i + 1 == keys.size() ? answers.lines : answers.keys).push_back(seconds);
        }
    }
    return answers;
}

void report(benchmark::State& state, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    state.SetIterationTime(median(times));
    state.counters["99th percentile"] = times[times.size() * 99 / 100];
}

/// A bordereau of 500 lines in a file of 300,000.
DemandeSaisie longBordereau(Exercice& exercice)
{
    constexpr qint64 num = 1;
    store::Database& base = exercice.Base();
    base.execute(u"update L_Vente set num_bordereau = ? where num <= ?"_s, {num, linesOfTheBordereau});
    return {ModeBordereau::Existant, u"01/01/2026"_s, u"1"_s, num, 1, u"Bateau"_s};
}

void typeAtTheWindow(benchmark::State& state, std::vector<double> Answers::*wanted)
{
    const QString folder = workingFolder(u"saisie"_s);
    copyExercise(folderOf(medium), folder);
    const auto exercise = open(folder);
    const auto former = controls::Message::setScript([](const controls::MessageText&) { return controls::Answer::Ok; });
    for (auto _ : state) {
        SaisieBordereau entry(*exercise, longBordereau(*exercise));
        if (const auto refusal = entry.ouvrir())
            throw std::runtime_error(refusal->texte.toStdString());
        j_vente window(*exercise, std::move(entry));
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        window.findChild<QAbstractButton*>(u"Crecettes(0)"_s)->click(); // a new line
        QApplication::processEvents();
        report(state, typeLines().*wanted);
    }
    controls::Message::setScript(former);
}

/// Five bare fields in a bare window, of which each Enter goes to the next.
class BareWindow : public QWidget
{
public:
    BareWindow()
    {
        auto* row = new QHBoxLayout(this);
        for (QLineEdit*& field : m_fields) {
            field = new QLineEdit;
            row->addWidget(field);
        }
        for (size_t i = 0; i < m_fields.size(); ++i)
            connect(m_fields[i], &QLineEdit::returnPressed, this, [this, i] {
                QLineEdit* next = m_fields[(i + 1) % m_fields.size()];
                next->setFocus();
                next->selectAll();
            });
        resize(windowSize);
        show();
        activateWindow();
        m_fields[0]->setFocus();
        QApplication::processEvents();
    }

private:
    std::array<QLineEdit*, 5> m_fields;
};

void typeIntoBareFields(benchmark::State& state, std::vector<double> Answers::*wanted)
{
    const BareWindow window;
    for (auto _ : state)
        report(state, typeLines().*wanted);
}

} // namespace

void addEntry()
{
    const std::pair<std::string, std::vector<double> Answers::*> kinds[] = {
        {"a key answered at the entry of a line, 500 lines above it", &Answers::keys},
        {"the Enter that takes a line, to the next field", &Answers::lines}};
    for (const auto& [name, wanted] : kinds) {
        add({.name = name,
             .program = [wanted = wanted](benchmark::State& state) { typeAtTheWindow(state, wanted); },
             .raw = [wanted = wanted](benchmark::State& state) { typeIntoBareFields(state, wanted); },
             .once = true});
    }
}

} // namespace talor::bench
