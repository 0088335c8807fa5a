#include "bench/paper_raw.h"

#include "core/words.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <stdexcept>

namespace talor::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr double unit = 720 / 25.4; ///< of the page, for a millimetre
constexpr QRgb navy = 0xff17435e;
constexpr QRgb ink = 0xff000000;
constexpr QRgb grey = 0xff5b6770;
constexpr QRgb sand = 0xfff4efe4;
constexpr QRgb stripe = 0xfff7f4ec;

QString amount(double value)
{
    QString text = QString::number(value, 'f', 2);
    for (qsizetype place = text.size() - 6; place > 0; place -= 3)
        text.insert(place, u' ');
    return text;
}

/// A font and its measures, made once.
struct Face
{
    explicit Face(double points, bool bold = false, const QString& family = u"Liberation Sans"_s)
        : font(made(points, bold, family))
        , metrics(font)
    {}

    static QFont made(double points, bool bold, const QString& family)
    {
        QFont font(family);
        font.setPixelSize(int(points * 10));
        font.setBold(bold);
        return font;
    }

    QFont font;
    QFontMetricsF metrics;
};

/// The painter with places in millimetres from the margins' corner. Texts are drawn from their baseline, the quickest
/// way there is.
class Sheet
{
public:
    explicit Sheet(QPainter& painter)
        : m_painter(painter)
    {}

    void text(double x, double y, double width, double height, const QString& shown, const Face& face,
              Qt::Alignment alignment = Qt::AlignLeft, QRgb color = ink)
    {
        if (shown.isEmpty())
            return;
        if (m_face != &face) {
            m_face = &face;
            m_painter.setFont(face.font);
        }
        m_painter.setPen(QColor(color));
        const QRectF room = place(x, y, width, height);
        const double left =
            alignment == Qt::AlignRight ? room.right() - face.metrics.horizontalAdvance(shown) : room.x();
        const double baseline = room.center().y() + (face.metrics.ascent() - face.metrics.descent()) / 2;
        m_painter.drawText(QPointF(left, baseline), shown);
    }
    void box(double x, double y, double width, double height, const QBrush& fill, const QPen& line = Qt::NoPen)
    {
        m_painter.setPen(line);
        m_painter.setBrush(fill);
        m_painter.drawRoundedRect(place(x, y, width, height), 1.5 * unit, 1.5 * unit);
    }
    void band(double y, double height, QRgb fill) { m_painter.fillRect(place(0, y, 180, height), QColor(fill)); }
    void rule(double y, double width, QRgb color)
    {
        m_painter.setPen(QPen(QColor(color), width * 10));
        m_painter.drawLine(place(0, y, 180, 0).topLeft(), place(0, y, 180, 0).topRight());
    }

private:
    static QRectF place(double x, double y, double width, double height)
    {
        constexpr double left = 15;
        constexpr double top = 13;
        return {(left + x) * unit, (top + y) * unit, width * unit, height * unit};
    }

    QPainter& m_painter;
    const Face* m_face = nullptr;
};

struct Fonts
{
    Face body{9.5}, bold{9.5, true}, heading{8.5, true}, label{8}, title{16.5, true}, number{13.5, true},
        client{11.5, true}, small{8.5}, mono{10.5, false, u"Liberation Mono"_s};
};

void paintHead(Sheet& sheet, const Fonts& fonts, const RawInvoicePage& invoice)
{
    sheet.text(0, 0, 100, 7, invoice.heading[0], fonts.title, Qt::AlignLeft, navy);
    sheet.text(0, 8.5, 100, 4, invoice.heading[1], fonts.body);
    sheet.text(0, 13, 100, 4, invoice.heading[2], fonts.body);
    sheet.text(104, 0.6, 76, 6, u"Facture N° "_s + QString::number(invoice.ordre) + u" / "_s + invoice.date.right(4),
               fonts.number, Qt::AlignRight);
    sheet.text(104, 8.5, 76, 5, u"Le "_s + invoice.date, fonts.body, Qt::AlignRight);
    sheet.rule(20.5, 1.6, navy);
}

void paintFoot(Sheet& sheet, const Fonts& fonts, int page, int pages)
{
    sheet.rule(267, 0.5, 0xffc9d3da);
    sheet.text(0, 268, 120, 4, u"Téléphone  :  041 00 00 00"_s, fonts.label, Qt::AlignLeft, grey);
    sheet.text(120, 268, 60, 4, u"Page %1 / %2"_s.arg(page).arg(pages), fonts.label, Qt::AlignRight, grey);
}

double paintClient(Sheet& sheet, const Fonts& fonts, const RawInvoicePage& invoice)
{
    sheet.box(90, 25, 90, 33, QColor(sand));
    sheet.text(95, 28, 80, 4, u"Client"_s, fonts.label, Qt::AlignLeft, grey);
    sheet.text(95, 32, 80, 5, invoice.client, fonts.client);
    sheet.text(95, 38, 80, 4, invoice.address, fonts.body);
    sheet.text(95, 43, 80, 4, invoice.town, fonts.body);
    sheet.text(95, 48, 80, 4, u"R.C. : "_s + invoice.registration, fonts.small);
    return 63;
}

double paintColumns(Sheet& sheet, const Fonts& fonts, double y)
{
    sheet.band(y, 7, navy);
    sheet.text(3, y, 70, 7, u"Poisson"_s, fonts.heading, Qt::AlignLeft, 0xffffffff);
    sheet.text(75, y, 22, 7, u"Casiers"_s, fonts.heading, Qt::AlignRight, 0xffffffff);
    sheet.text(99, y, 24, 7, u"Poids (kg)"_s, fonts.heading, Qt::AlignRight, 0xffffffff);
    sheet.text(125, y, 24, 7, u"P.U. (DA)"_s, fonts.heading, Qt::AlignRight, 0xffffffff);
    sheet.text(151, y, 26, 7, u"Montant (DA)"_s, fonts.heading, Qt::AlignRight, 0xffffffff);
    return y + 8;
}

void paintLine(Sheet& sheet, const Fonts& fonts, double y, const RawInvoicePage::Line& line, bool striped)
{
    if (striped)
        sheet.band(y, 5.6, stripe);
    sheet.text(3, y, 70, 5.6, line.fish, fonts.body);
    sheet.text(75, y, 22, 5.6, QString::number(line.crates), fonts.body, Qt::AlignRight);
    sheet.text(99, y, 24, 5.6, amount(line.weight), fonts.body, Qt::AlignRight);
    sheet.text(125, y, 24, 5.6, amount(line.price), fonts.body, Qt::AlignRight);
    sheet.text(151, y, 26, 5.6, amount(line.total), fonts.body, Qt::AlignRight);
}

void paintTotals(Sheet& sheet, const Fonts& fonts, double y, const RawInvoicePage& invoice)
{
    qint64 crates = 0;
    double weight = 0;
    for (const auto& line : invoice.lines) {
        crates += line.crates;
        weight += line.weight;
    }
    sheet.rule(y + 0.6, 0.8, navy);
    sheet.text(3, y + 1.8, 70, 6, u"Total poisson"_s, fonts.bold);
    sheet.text(75, y + 1.8, 22, 6, QString::number(crates), fonts.bold, Qt::AlignRight);
    sheet.text(99, y + 1.8, 24, 6, amount(weight), fonts.bold, Qt::AlignRight);
    sheet.text(145, y + 1.8, 32, 6, amount(invoice.fish), fonts.bold, Qt::AlignRight);
    sheet.text(99, y + 9, 46, 6, u"Consigne"_s, fonts.body);
    sheet.text(145, y + 9, 32, 6, amount(invoice.deposit), fonts.body, Qt::AlignRight);
    sheet.box(96, y + 16.5, 84, 9, QColor(sand));
    sheet.text(99, y + 16.5, 30, 9, u"Total (DA)"_s, fonts.client, Qt::AlignLeft, navy);
    sheet.text(131, y + 16.5, 46, 9, amount(invoice.total), fonts.client, Qt::AlignRight);
    sheet.text(0, y + 30, 180, 4, u"Arrêtée la présente facture à la somme de :"_s, fonts.body);
    sheet.box(0, y + 35.5, 180, 8, Qt::NoBrush, QPen(QColor(navy), 6));
    for (int i = 0; i < 3; ++i)
        sheet.text(4, y + 37 + 5 * i, 172, 5, invoice.words[i], fonts.mono);
}

} // namespace

RawInvoicePrint::RawInvoicePrint(Raw& file)
    : m_file(file)
    , m_invoice(
          file.prepare("select F.ordre, F.Date, F.Total_HT, F.Consigne, F.Total, C.nom, C.prenom, C.adr1, C.ville, "
                       "C.RC from Factures F left join Clients C on C.num = F.num_client where F.num = ?"))
    , m_lines(file.prepare("select P.denom, L.Casiers, L.poids, L.PU, L.Total from L_Vente L "
                           "left join Poissons P on P.num = L.Num_Poisson where L.Num_Facture = ? order by L.num"))
    , m_texts(
          file.prepare("update textes set ch1 = ?, ch2 = ?, ch3 = ?, ch5 = ?, ch6 = ?, ch9 = ?, ch10 = ?, ch11 = ?, "
                       "ch12 = ?, ch13 = ?, ch14 = ?, ch15 = ?"))
    , m_begin(file.prepare("begin immediate"))
    , m_commit(file.prepare("commit"))
{}

RawInvoicePage RawInvoicePrint::read(qint64 num)
{
    RawInvoicePage read;
    bind(m_invoice, 1, num);
    if (sqlite3_step(m_invoice) != SQLITE_ROW)
        throw std::runtime_error("an invoice is missing");
    read.ordre = sqlite3_column_int64(m_invoice, 0);
    read.date = dateOf(m_invoice, 1);
    read.fish = sqlite3_column_double(m_invoice, 2);
    read.deposit = sqlite3_column_double(m_invoice, 3);
    read.total = sqlite3_column_double(m_invoice, 4);
    read.client = textOf(m_invoice, 5) + u"  "_s + textOf(m_invoice, 6);
    read.address = textOf(m_invoice, 7);
    read.town = textOf(m_invoice, 8);
    read.registration = textOf(m_invoice, 9);
    read.heading = QStringList{u"Mandataire du port"_s, u"Halle à marée"_s, u"Port de Ténès"_s};
    sqlite3_reset(m_invoice);
    bind(m_lines, 1, num);
    while (sqlite3_step(m_lines) == SQLITE_ROW)
        read.lines.push_back({textOf(m_lines, 0), sqlite3_column_int64(m_lines, 1), sqlite3_column_double(m_lines, 2),
                              sqlite3_column_double(m_lines, 3), sqlite3_column_double(m_lines, 4)});
    sqlite3_reset(m_lines);
    read.words = MontantEnLettres(read.total);
    read.words.resize(3);
    writeTexts(read);
    return read;
}

void RawInvoicePrint::writeTexts(const RawInvoicePage& invoice)
{
    bindAll(m_texts, invoice.heading[0].toUtf8(), invoice.heading[1].toUtf8(), invoice.heading[2].toUtf8(),
            QByteArray("Téléphone  :  041 00 00 00"),
            QByteArray::number(invoice.ordre) + " / " + invoice.date.right(4).toUtf8(), QByteArray("Facture N°"),
            QByteArray("Arrêtée la présente facture à la somme de :"), invoice.words[0].toUtf8(),
            invoice.words[1].toUtf8(), invoice.words[2].toUtf8(), amount(invoice.deposit).toUtf8(),
            amount(invoice.total).toUtf8());
    m_file.execute(m_texts);
}

int RawInvoicePrint::paint(QPainter& painter, const RawInvoicePage& invoice, const std::function<void()>& newPage)
{
    static const Fonts fonts;
    constexpr double bottom = 264; // where the foot of the page begins
    constexpr double totals = 50;  // height of what follows the lines
    Sheet sheet(painter);
    // The pages are counted first: each of them tells their number.
    double end = 71 + 5.6 * double(invoice.lines.size()) + totals;
    int pages = 1;
    for (; end > bottom; ++pages)
        end -= bottom - 41 - 5.6;
    int page = 1;
    paintHead(sheet, fonts, invoice);
    paintFoot(sheet, fonts, page, pages);
    double y = paintColumns(sheet, fonts, paintClient(sheet, fonts, invoice));
    const auto turn = [&] {
        newPage();
        paintHead(sheet, fonts, invoice);
        paintFoot(sheet, fonts, ++page, pages);
        sheet.text(0, 25, 112, 5, u"Client : "_s + invoice.client + u" (suite)"_s, fonts.body, Qt::AlignLeft, grey);
        y = paintColumns(sheet, fonts, 33);
    };
    for (std::size_t i = 0; i < invoice.lines.size(); ++i) {
        const bool last = i + 1 == invoice.lines.size();
        if (y + 5.6 + (last ? totals : 0) > bottom)
            turn();
        paintLine(sheet, fonts, y, invoice.lines[i], i % 2 == 1);
        y += 5.6;
    }
    paintTotals(sheet, fonts, y, invoice);
    return page;
}

int RawInvoicePrint::toPdf(const std::vector<qint64>& nums, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("the PDF cannot be written");
    int pages = 0;
    {
        QPdfWriter writer(&file);
        writer.setResolution(720);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins({});
        QPainter painter(&writer);
        m_file.execute(m_begin);
        for (const qint64 num : nums) {
            if (pages > 0)
                writer.newPage();
            pages += paint(painter, read(num), [&] { writer.newPage(); });
        }
        m_file.execute(m_commit);
    }
    if (!file.commit())
        throw std::runtime_error("the PDF cannot be written");
    return pages;
}

RawPreview::RawPreview(RawInvoicePrint& print, qint64 num)
    : m_invoice(print.read(num))
{
    resize(980, 720);
}

void RawPreview::paintEvent(QPaintEvent*)
{
    constexpr QSizeF paper{210 * unit, 297 * unit};
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double scale = height() / paper.height();
    painter.translate((width() - paper.width() * scale) / 2, 0);
    painter.scale(scale, scale);
    painter.fillRect(QRectF({}, paper), Qt::white);
    RawInvoicePrint::paint(painter, m_invoice, [] {});
}

} // namespace talor::bench
