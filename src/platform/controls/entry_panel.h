#pragma once

#include <QFrame>

class QGridLayout;
class QHBoxLayout;
class QLabel;

namespace controls {

class CommandButton;

/// The panel in which a record is entered: a title, captions beside their fields, and at its foot the buttons
/// that take it and leave it.
///
///     auto* panel = new EntryPanel(u"SSFrame1", u"SSPanel2");
///     panel->addField(u"Nom"_s, nom);
///     panel->addFields(u"Adresse"_s, {adr1, adr2});
///     auto* ok = panel->addAccept(u"Image1", 0);
///     auto* cancel = panel->addCancel(u"Image1", 1);
class EntryPanel : public QFrame
{
    Q_OBJECT

public:
    EntryPanel(QStringView name, QStringView titleName, QWidget* parent = nullptr);

    QString title() const;
    void setTitle(const QString& title);

    /// A caption and its field on a row of their own.
    QLabel* addField(const QString& caption, QWidget* field);
    /// One caption and several widgets side by side: a date and its calendar button. The first takes the room.
    QLabel* addFields(const QString& caption, const QList<QWidget*>& fields);
    /// The fields that follow stand in a further column beside those before, from the top.
    void nextColumn();
    /// Something over the whole width of the column.
    void addWide(QWidget* widget);

    /// The button that takes the entry ("OK", Ctrl+Enter) and the one that leaves it ("Annuler").
    CommandButton* addAccept(QStringView family, int index, const QString& caption = QStringLiteral("OK"));
    CommandButton* addCancel(QStringView family, int index, const QString& caption = QStringLiteral("Annuler"));
    /// Further buttons at the foot, from the left.
    void addButton(QWidget* button);

private:
    CommandButton* addFootButton(QStringView family, int index, QStringView icon, const QString& caption);

    QLabel* m_title;
    QHBoxLayout* m_columns;
    QGridLayout* m_fields = nullptr; ///< of the last column
    QHBoxLayout* m_foot;
};

} // namespace controls
