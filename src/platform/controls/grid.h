#pragma once

#include <QTableView>

#include <functional>

namespace controls {

/// One column of a grid. Its width is in twips (a fifteenth of a pixel at 100 %), and grows with the program's type.
struct Column
{
    QString caption;
    int widthTwips = 0;
    Qt::Alignment alignment = Qt::AlignLeft;
    bool stretches = false; ///< takes what width is left, and gives some; without any such column the last takes it
};

/// The ink of a cell.
enum class Ink
{
    Normal,
    Owed, ///< red
    Muted,
    Strong
};

/// A list of whole rows, of which one is selected. Cells are asked for when they are painted and never kept, so that a
/// hundred thousand rows cost what the few in view cost.
///
///     grid->setColumns({{u"N°"_s, 600, Qt::AlignHCenter}, {u"Nom"_s, 2020}, {u"Solde"_s, 1400, Qt::AlignRight}});
///     grid->setRows(count, [this](int row, int column) { return cell(row, column); });
class Grid : public QTableView
{
    Q_OBJECT

public:
    using Format = std::function<QString(int row, int column)>;
    using InkOf = std::function<Ink(int row, int column)>;
    using MarkOf = std::function<bool(int row)>;

    explicit Grid(QWidget* parent = nullptr);
    ~Grid() override;

    void setColumns(const QList<Column>& columns);
    /// Replaces all rows; none is selected afterwards and the first is in view.
    void setRows(int count, Format format);
    /// No rows.
    void clear();

    int rowCount() const;
    int columnCount() const;
    /// A cell as it is shown; empty outside the grid.
    QString text(int row, int column) const;

    void refreshRow(int row);
    void refresh();
    /// The source of the rows has grown or shrunk by this one row. Rows below a removed one move up; the selection is
    /// lost with its row.
    void appendRow();
    void removeRow(int row);

    /// Selected row from 0, -1 for none.
    int currentRow() const;
    /// Selects a row whole and brings it into view; any other number selects none. Tells `rowSelected`, also when the
    /// row was selected already.
    void selectRow(int row);
    void scrollToEnd();

    /// Ink and mark are asked for when painted, as the text is. A marked row stands on sand.
    void setInk(InkOf ink);
    void setMark(MarkOf mark);
    /// What is written in the middle while there are no rows.
    void setEmptyText(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void rowSelected(int row);
    /// A double click, Enter or F2.
    void rowActivated(int row);
    /// A click, also on the row selected already.
    void rowClicked(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    class Rows;
    class Painter;

    int widthOf(const Column& column) const;
    int columnsWidth() const;
    void fitColumns();
    void fitRows();

    Rows* m_rows;
    QList<Column> m_columns;
    QString m_emptyText;
    bool m_takingFocus = false;
};

} // namespace controls
