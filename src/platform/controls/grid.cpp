#include "platform/controls/grid.h"

#include "platform/controls/look.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <numeric>

namespace controls {

namespace {

constexpr int cellMargin = 7;
constexpr int lowestRow = 26;
constexpr int rowsInView = 12;
/// Widths in twips were drawn for a type of 11 pixels at 100 %, fifteen twips to the pixel.
constexpr double twipsOfTypePixel = 15.0 * 11.0;

} // namespace

/// The rows as Qt's views read them: a count and a function.
class Grid::Rows : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_count; }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return m_format ? m_format(index.row(), index.column()) : QString();
        return role == Qt::TextAlignmentRole ? alignmentOf(index.column()) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal)
            return {};
        if (role == Qt::TextAlignmentRole)
            return alignmentOf(section);
        return role == Qt::DisplayRole ? QVariant(m_columns.value(section).caption) : QVariant();
    }

    void setColumns(const QList<Column>& columns)
    {
        beginResetModel();
        m_columns = columns;
        endResetModel();
    }

    void setRows(int count, Format format)
    {
        beginResetModel();
        m_count = count;
        m_format = std::move(format);
        endResetModel();
    }

    void append()
    {
        beginInsertRows({}, m_count, m_count);
        ++m_count;
        endInsertRows();
    }

    void remove(int row)
    {
        beginRemoveRows({}, row, row);
        --m_count;
        endRemoveRows();
    }

    void refresh(int first, int last) { emit dataChanged(index(first, 0), index(last, columnCount() - 1)); }

    InkOf ink;
    MarkOf mark;

private:
    QVariant alignmentOf(int column) const
    {
        return QVariant::fromValue(m_columns.value(column).alignment | Qt::AlignVCenter);
    }

    int m_count = 0;
    Format m_format;
    QList<Column> m_columns;
};

/// Paints a cell: its band, its selection, its ink.
class Grid::Painter : public QStyledItemDelegate
{
public:
    Painter(const Rows* rows, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_rows(rows)
    {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool enabled = option.state & QStyle::State_Enabled;
        const bool selected = option.state & QStyle::State_Selected;
        painter->fillRect(option.rect, ground(index.row(), enabled, selected));

        const Ink ink = m_rows->ink ? m_rows->ink(index.row(), index.column()) : Ink::Normal;
        QFont font = option.font;
        font.setBold(ink == Ink::Strong);
        painter->setFont(font);
        painter->setPen(enabled ? colourOf(ink) : colour::muted);
        const QRect room = option.rect.adjusted(cellMargin, 0, -cellMargin, 0);
        const QString text = QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, room.width());
        const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        painter->drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine, text);
    }

private:
    QColor ground(int row, bool enabled, bool selected) const
    {
        if (!enabled)
            return selected ? colour::sandDeep : colour::sand;
        if (selected)
            return colour::selected;
        if (m_rows->mark && m_rows->mark(row))
            return colour::sandDeep;
        return row % 2 == 0 ? colour::paper : colour::band;
    }

    static QColor colourOf(Ink ink)
    {
        switch (ink) {
        case Ink::Owed:
            return colour::owed;
        case Ink::Muted:
            return colour::muted;
        case Ink::Normal:
        case Ink::Strong:
            break;
        }
        return colour::ink;
    }

    const Rows* m_rows;
};

Grid::Grid(QWidget* parent)
    : QTableView(parent)
    , m_rows(new Rows(this))
{
    setModel(m_rows);
    setItemDelegate(new Painter(m_rows, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setMinimumSectionSize(2 * cellMargin);
    fitRows();
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) { emit rowClicked(index.row()); });
}

Grid::~Grid() = default;

void Grid::setColumns(const QList<Column>& columns)
{
    m_columns = columns;
    m_rows->setColumns(columns);
    fitColumns();
    updateGeometry();
}

void Grid::setRows(int count, Format format)
{
    m_rows->setRows(count, std::move(format));
    fitColumns();
    scrollToTop();
}

void Grid::clear()
{
    setRows(0, {});
}

int Grid::rowCount() const
{
    return m_rows->rowCount();
}

int Grid::columnCount() const
{
    return static_cast<int>(m_columns.size());
}

QString Grid::text(int row, int column) const
{
    return m_rows->index(row, column).data().toString();
}

void Grid::refreshRow(int row)
{
    if (row >= 0 && row < rowCount())
        m_rows->refresh(row, row);
}

void Grid::refresh()
{
    if (rowCount() > 0)
        m_rows->refresh(0, rowCount() - 1);
}

void Grid::appendRow()
{
    m_rows->append();
}

void Grid::removeRow(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    // Qt would move the selection to a neighbour, and say so while the row still stands.
    if (row == currentRow())
        setCurrentIndex({});
    m_rows->remove(row);
    refresh();
}

int Grid::currentRow() const
{
    return currentIndex().row();
}

void Grid::selectRow(int row)
{
    if (row < 0 || row >= rowCount()) {
        setCurrentIndex({});
        return;
    }
    const QModelIndex index = m_rows->index(row, 0);
    const bool already = row == currentRow();
    setCurrentIndex(index);
    scrollTo(index);
    if (already)
        emit rowSelected(row);
}

void Grid::scrollToEnd()
{
    scrollToBottom();
}

void Grid::setInk(InkOf ink)
{
    m_rows->ink = std::move(ink);
    viewport()->update();
}

void Grid::setMark(MarkOf mark)
{
    m_rows->mark = std::move(mark);
    viewport()->update();
}

void Grid::setEmptyText(const QString& text)
{
    m_emptyText = text;
    viewport()->update();
}

QSize Grid::sizeHint() const
{
    const int border = 2 * frameWidth();
    return {columnsWidth() + verticalScrollBar()->sizeHint().width() + border + 2,
            horizontalHeader()->sizeHint().height() + rowsInView * verticalHeader()->defaultSectionSize() + border};
}

QSize Grid::minimumSizeHint() const
{
    constexpr int rows = 4;
    return {qMin(columnsWidth(), 240),
            horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize()};
}

void Grid::keyPressEvent(QKeyEvent* event)
{
    const bool activates =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2;
    if (activates && currentRow() >= 0)
        emit rowActivated(currentRow());
    else
        QTableView::keyPressEvent(event);
}

void Grid::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableView::mouseDoubleClickEvent(event);
    if (const QModelIndex index = indexAt(event->pos()); index.isValid() && event->button() == Qt::LeftButton)
        emit rowActivated(index.row());
}

void Grid::focusInEvent(QFocusEvent* event)
{
    const QScopedValueRollback taking(m_takingFocus, true);
    QTableView::focusInEvent(event);
}

/// Rows are whole: Left and Right stay, Home and End go to the first row and the last.
QModelIndex Grid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // Qt would make the first row current as soon as the focus comes.
    if (m_takingFocus)
        return {};
    switch (action) {
    case MoveHome:
        return m_rows->index(0, 0);
    case MoveEnd:
        return m_rows->index(rowCount() - 1, 0);
    case MoveLeft:
    case MoveRight:
        return currentIndex();
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid() && current.row() != previous.row())
        emit rowSelected(current.row());
}

void Grid::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (rowCount() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(colour::muted);
    painter.drawText(viewport()->rect().adjusted(16, 8, -16, -8), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void Grid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fitColumns();
}

void Grid::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitRows();
        fitColumns();
        updateGeometry();
    }
}

/// Never narrower than the caption.
int Grid::widthOf(const Column& column) const
{
    const double typePixels = fontInfo().pixelSize();
    QFont captionFont = horizontalHeader()->font();
    captionFont.setBold(true);
    const int caption = QFontMetrics(captionFont).horizontalAdvance(column.caption) + 2 * cellMargin + 2;
    return qMax(qRound(column.widthTwips * typePixels / twipsOfTypePixel), caption);
}

int Grid::columnsWidth() const
{
    return std::accumulate(m_columns.cbegin(), m_columns.cend(), 0,
                           [this](int sum, const Column& column) { return sum + widthOf(column); });
}

void Grid::fitColumns()
{
    if (m_columns.isEmpty())
        return;
    const auto marked = std::find_if(m_columns.cbegin(), m_columns.cend(), [](const Column& c) { return c.stretches; });
    const auto wide = marked == m_columns.cend() ? m_columns.size() - 1 : marked - m_columns.cbegin();
    int left = viewport()->width() - columnsWidth();
    // Where the wide column can give up to half its width it spares the list a move sideways.
    if (left < 0 && (marked == m_columns.cend() || -left > widthOf(*marked) / 2))
        left = 0;
    for (int i = 0; i < columnCount(); ++i)
        setColumnWidth(i, widthOf(m_columns[i]) + (i == wide ? left : 0));
}

void Grid::fitRows()
{
    verticalHeader()->setMinimumSectionSize(lowestRow);
    verticalHeader()->setDefaultSectionSize(qMax(lowestRow, fontMetrics().height() + 10));
}

} // namespace controls
