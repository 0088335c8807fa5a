#pragma once

#include "platform/reports/condition.h"
#include "platform/reports/document.h"
#include "platform/reports/pattern.h"

namespace reports {

/// What becomes of a text that is wider than its place. It never runs over what stands beside it.
enum class Fit
{
    Shrink, ///< smaller letters down to seven tenths, then cut with "…"; figures are never cut
    Elide,  ///< cut with "…"
    Wrap,   ///< on as many lines as it takes: the band grows
};

/// Something that a band draws. Lengths are units of the display list, from the band's upper left corner.
struct Element
{
    enum class Kind
    {
        Text,
        Rule,
        Frame,
        Stack
    };

    Kind kind = Kind::Text;
    Condition when;
    QRectF place;           ///< a text's height 0: that of its font
    bool stretches = false; ///< grows with its band

    Pattern pattern;
    FontKey font;
    QRgb color = 0xFF000000;
    Align align = Align::Left;
    Fit fit = Fit::Shrink;
    bool middle = false; ///< centred in its height; else at the top

    double penWidth = 0;
    QRgb fill = 0;
    double radius = 0;

    double below = 0;        ///< of a stack: the margin that its band keeps under it
    QList<Element> children; ///< of a stack: texts one under the other, blank ones left out
};

struct Band
{
    double height = 0;
    Condition when;
    QRgb alternate = 0;   ///< ground of every second detail row; 0: none
    bool repeats = false; ///< a group's head: again on each page that the group runs on to
    bool keeps = true;    ///< a group's foot: never parted from the row in front of it
    QList<Element> elements;
};

using Bands = QList<Band>;

/// A sum or a count over the rows, taken up again from nothing when its group begins.
struct Sum
{
    struct Part
    {
        Reference field;
        bool isSubtracted = false;
    };
    enum class Reset
    {
        Never,
        Group,
        Page,
        Row
    };

    QString name;
    bool isCount = false;
    QList<Part> parts; ///< none for a count: every row counts
    Reset reset = Reset::Never;
    QString group; ///< of Reset::Group
};

/// A run of rows that have a field in common, with its head and foot. The outermost level is the section itself, which
/// has no field.
struct Level
{
    QString name;
    Reference by;
    QString orderBy; ///< "Table.field" that orders the groups; empty: the field itself
    bool startsPage = false;
    bool startsDocument = false; ///< page numbers begin again: one invoice, one document
    Bands heads;
    Bands columns; ///< column headings: again at the top of each page
    Bands foots;
};

/// Where a section's rows come from: a table, and others looked up for each of its rows. A row stays when the
/// table looked up has none for it.
struct Source
{
    struct Join
    {
        QString table;
        QString left, right; ///< "Table.field", equal to each other
    };

    QString table;
    QList<Join> joins;
    QStringList order; ///< "Table.field", behind "-" when descending; where the request asks for no order
    bool contains(QStringView tableName) const;
};

struct Section
{
    Source source;
    QList<Level> levels; ///< from the outermost inwards; never empty
    Bands details;
    Bands emptyBands; ///< in place of all the others when there is no row
    bool startsPage = false;
};

/// A report as its file describes it.
struct Template
{
    /// Reads the file. Throws Error with a sentence that names the file and the line.
    static Template load(const QString& path);
    /// The same on the bytes of a file; `name` is what messages call it.
    static Template read(const QByteArray& xml, const QString& name);

    QString name; ///< of the file, without its folder
    QString title;
    QPageSize::PageSizeId pageSize = QPageSize::A4;
    bool landscape = false;
    QMarginsF margins; ///< units of the display list
    Bands pageHeads, pageFoots;
    QList<Section> sections;

    /// Tables of one row whose fields can stand anywhere in the report.
    QStringList rowTables;
    /// Every "Table.field" that the report prints, tests, groups or sums by, each once: what References point at.
    QStringList fieldNames;
    QList<Sum> sums;

    /// `fieldNames` and those that the joins and orders name: all must be in the schema.
    QStringList fields() const;
};

} // namespace reports
