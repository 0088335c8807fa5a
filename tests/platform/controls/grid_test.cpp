#include "platform/controls/grid.h"
#include "tests/support/keys.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using controls::Grid;
using controls::Ink;

namespace {

QString cell(int row, int column)
{
    return u"%1/%2"_s.arg(row).arg(column);
}

/// A grid of so many rows on screen; `calls` counts the cells asked for.
struct Shown
{
    explicit Shown(int rows)
    {
        grid.setColumns({{u"N°"_s, 600, Qt::AlignHCenter}, {u"Nom"_s, 2020}, {u"Solde"_s, 1400, Qt::AlignRight}});
        grid.setRows(rows, [this](int row, int column) {
            ++calls;
            return cell(row, column);
        });
        grid.resize(420, 400);
        show(grid);
        QCoreApplication::processEvents();
    }

    int calls = 0;
    Grid grid;
};

} // namespace

TEST(Grid, AsksForTheCellsInViewOnlyHoweverManyRowsThereAre)
{
    constexpr int rows = 100'000;
    Shown shown(rows);
    constexpr int fewScreens = 3 * 40 * 4;
    EXPECT_GT(shown.calls, 0);
    EXPECT_LT(shown.calls, fewScreens);
    shown.calls = 0;
    shown.grid.selectRow(rows - 1);
    shown.grid.grab();
    EXPECT_LT(shown.calls, fewScreens);
    EXPECT_EQ(shown.grid.currentRow(), rows - 1);
    EXPECT_TRUE(
        shown.grid.viewport()->rect().contains(shown.grid.visualRect(shown.grid.model()->index(rows - 1, 0)).center()));
    EXPECT_EQ(shown.grid.text(rows - 1, 2), u"99999/2"_s);
    EXPECT_EQ(shown.grid.text(rows, 0), u""_s);
}

TEST(Grid, TheKeyboardWalksOverWholeRows)
{
    Shown shown(200);
    QSignalSpy selected(&shown.grid, &Grid::rowSelected);
    shown.grid.selectRow(0);
    const struct
    {
        Qt::Key key;
        int row;
    } steps[] = {
        {Qt::Key_Down, 1},   {Qt::Key_Down, 2}, {Qt::Key_Up, 1},   {Qt::Key_Right, 1}, {Qt::Key_End, 199},
        {Qt::Key_Down, 199}, {Qt::Key_Home, 0}, {Qt::Key_Left, 0}, {Qt::Key_Up, 0},
    };
    for (const auto& step : steps) {
        press(shown.grid, step.key);
        EXPECT_EQ(shown.grid.currentRow(), step.row);
        EXPECT_EQ(shown.grid.selectionModel()->selectedRows().size(), 1);
    }
    EXPECT_EQ(selected.count(), 6);
    press(shown.grid, Qt::Key_PageDown);
    EXPECT_GT(shown.grid.currentRow(), 5);
}

TEST(Grid, EnterF2AndADoubleClickActivateTheRow)
{
    Shown shown(5);
    QSignalSpy activated(&shown.grid, &Grid::rowActivated);
    press(shown.grid, Qt::Key_Return);
    EXPECT_EQ(activated.count(), 0) << "no row is selected";
    shown.grid.selectRow(2);
    press(shown.grid, Qt::Key_Return);
    press(shown.grid, Qt::Key_F2);
    const QPoint third = shown.grid.visualRect(shown.grid.model()->index(3, 1)).center();
    QTest::mouseClick(shown.grid.viewport(), Qt::LeftButton, {}, third);
    QTest::mouseDClick(shown.grid.viewport(), Qt::LeftButton, {}, third);
    QTest::mouseDClick(shown.grid.viewport(), Qt::LeftButton, {}, third + QPoint(0, 200));
    ASSERT_EQ(activated.count(), 3);
    EXPECT_EQ(activated[1][0].toInt(), 2);
    EXPECT_EQ(activated[2][0].toInt(), 3);
    EXPECT_EQ(shown.grid.currentRow(), 3) << "a click below the last row changes nothing";
}

TEST(Grid, SelectingTellsTheRowEvenTwiceAndNothingIsSelectedAtFirst)
{
    Shown shown(5);
    QSignalSpy selected(&shown.grid, &Grid::rowSelected);
    EXPECT_EQ(shown.grid.currentRow(), -1);
    shown.grid.selectRow(3);
    shown.grid.selectRow(3);
    EXPECT_EQ(selected.count(), 2);
    shown.grid.selectRow(7);
    EXPECT_EQ(shown.grid.currentRow(), -1);
    EXPECT_EQ(selected.count(), 2);
    shown.grid.selectRow(3);
    shown.grid.setRows(5, cell);
    EXPECT_EQ(shown.grid.currentRow(), -1);
}

TEST(Grid, RowsComeAndGoUnderTheSelection)
{
    Grid grid;
    QStringList names{u"a"_s, u"b"_s, u"c"_s};
    grid.setColumns({{u"Nom"_s, 2000}});
    grid.setRows(3, [&](int row, int) { return names.at(row); });
    show(grid);
    QSignalSpy selected(&grid, &Grid::rowSelected);
    names.append(u"d"_s);
    grid.appendRow();
    EXPECT_EQ(grid.text(3, 0), u"d"_s);
    grid.selectRow(3);
    names.removeAt(0);
    grid.removeRow(0);
    EXPECT_EQ(grid.rowCount(), 3);
    EXPECT_EQ(grid.currentRow(), 2) << "the selection stays with its row";
    names.removeAt(2);
    grid.removeRow(2);
    EXPECT_EQ(grid.currentRow(), -1) << "and is lost with it";
    EXPECT_EQ(selected.count(), 1);
    grid.clear();
    EXPECT_EQ(grid.rowCount(), 0);
    press(grid, Qt::Key_Down);
    press(grid, Qt::Key_Home);
    EXPECT_EQ(grid.currentRow(), -1);
}

TEST(Grid, WhatIsOwedIsRed)
{
    Shown shown(3);
    shown.grid.setInk([](int row, int column) { return row == 1 && column == 2 ? Ink::Owed : Ink::Normal; });
    const auto reddish = [&](int row) {
        const QImage picture = shown.grid.viewport()->grab().toImage();
        const QRect place = shown.grid.visualRect(shown.grid.model()->index(row, 2));
        for (int x = place.left(); x < place.right(); ++x)
            for (int y = place.top(); y < place.bottom(); ++y)
                if (const QColor c = picture.pixelColor(x, y); c.red() > 150 && c.green() < 90)
                    return true;
        return false;
    };
    EXPECT_FALSE(reddish(0));
    EXPECT_TRUE(reddish(1));
    shown.grid.selectRow(1);
    EXPECT_TRUE(reddish(1)) << "also in the selected row";
    shown.grid.setEnabled(false);
    EXPECT_FALSE(reddish(1)) << "a disabled grid is grey";
}

TEST(Grid, ColumnsGrowWithTheWindowAndAreNeverNarrowerThanTheirCaption)
{
    Grid grid;
    grid.setColumns({{u"Une légende bien longue"_s, 100}, {u"Nom"_s, 1000, Qt::AlignLeft, true}, {u"Ville"_s, 1000}});
    grid.resize(900, 300);
    show(grid);
    EXPECT_GT(grid.columnWidth(0), 150);
    EXPECT_GT(grid.columnWidth(1), 300);
    EXPECT_LT(grid.columnWidth(2), 150);
    int width = 0;
    for (int column = 0; column < 3; ++column)
        width += grid.columnWidth(column);
    EXPECT_EQ(width, grid.viewport()->width());
    grid.resize(200, 300);
    const int asked = grid.columnWidth(1);
    const int frame = grid.width() - grid.viewport()->width();
    const auto columns = [&] { return grid.columnWidth(0) + grid.columnWidth(1) + grid.columnWidth(2); };
    const int all = columns();
    EXPECT_GT(all, grid.viewport()->width()) << "half of the wide column would not do: it gives nothing";
    grid.resize(all - asked / 3 + frame, 300);
    EXPECT_EQ(columns(), grid.viewport()->width()) << "it gives what spares a move sideways";
    EXPECT_GT(grid.columnWidth(1), asked / 2);
}
