#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace controls {

/// The way of the keyboard through the fields of an entry, in the order in which they are added. Enter goes to the
/// next field, Up and Down to the previous and the next; hidden and disabled fields are passed over. At the ends of the
/// chain nothing happens, unless the last field has an action of its own. Left and Right stay with the field until a
/// rule is given for them.
///
///     chain->add({client, fish, crates, weight, price});
///     chain->atLast([this] { recordLine(); });
///     chain->onKey(Qt::Key_Right, [this](int i) { chain->goTo(i + 1); });
class FieldChain : public QObject
{
    Q_OBJECT

public:
    /// Position in the chain, from 0.
    using Action = std::function<void(int position)>;

    explicit FieldChain(QObject* parent = nullptr);

    void add(QWidget* field);
    void add(const QList<QWidget*>& fields);

    /// What Enter does in the last field (the last that can take the focus).
    void atLast(std::function<void()> action);
    /// Replaces what a key does in every field, or in one. Enter is `Qt::Key_Return`, on the keypad too.
    void onKey(Qt::Key key, Action action);
    void onKey(Qt::Key key, int position, std::function<void()> action);
    /// The key acts only from `first` to `last`; elsewhere it does nothing.
    void limit(Qt::Key key, int first, int last);

    int count() const { return static_cast<int>(m_fields.size()); }
    QWidget* field(int position) const { return m_fields.value(position); }
    /// Position of the field that has the focus, -1 when none has.
    int current() const;

    /// Gives the focus to a field of the chain. Out of range does nothing.
    void goTo(int position);
    /// To the next and the previous field that can take the focus; false when there is none.
    bool goNext(int position);
    bool goPrevious(int position);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Limit
    {
        int first;
        int last;
    };

    bool act(int position, Qt::Key key);
    bool move(int position, int step);
    bool keepsKey(int position, Qt::Key key) const;

    QList<QPointer<QWidget>> m_fields;
    std::function<void()> m_atLast;
    QHash<int, Action> m_actions;
    QHash<std::pair<int, int>, std::function<void()>> m_actionsAt;
    QHash<int, Limit> m_limits;
};

} // namespace controls
