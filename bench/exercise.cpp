#include "bench/exercise.h"

#include "bench/raw.h"
#include "core/schema.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QHash>

#include <cstdio>
#include <stdexcept>

namespace talor::bench {

using namespace Qt::StringLiterals;

int Dice::below(int limit)
{
    // splitmix64: the standard library's distributions differ from one to the next.
    quint64 z = m_state += 0x9E3779B97F4A7C15u;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return int((z ^ (z >> 31)) % quint64(limit));
}

double Dice::between(double low, double high, double step)
{
    return low + step * below(int((high - low) / step) + 1);
}

namespace {

constexpr int days = 365;
constexpr double crateDeposit = 100;
constexpr double commission = 15;

QByteArray dayText(int day)
{
    return QDate(year, 1, 1).addDays(day).toString(u"yyyy-MM-dd").toLatin1();
}

int monthOf(int day)
{
    return QDate(year, 1, 1).addDays(day).month();
}

/// First of `total` things that falls on a day, when they are spread evenly over the year.
int firstOf(int day, int total)
{
    return int(qint64(day) * total / days);
}

QByteArray pick(Dice& dice, std::initializer_list<const char*> from)
{
    return from.begin()[dice.below(int(from.size()))];
}

QByteArray surname(Dice& dice)
{
    return pick(dice, {"BEN", "AÏT ", "OULD ", "HADJ ", "", "", "", ""}) +
           pick(dice, {"AMROUCHE", "BELKACEM", "CHÉRIF", "DJEBBAR", "FERHANI", "GUENDOUZ", "HAMIDI", "KACIMI", "LARBI",
                       "MANSOURI", "NACEUR", "OUALI", "RAHMANI", "SAÏDI", "TOUATI", "YAHIAOUI", "ZERROUKI"}) +
           pick(dice, {"", "", "", " ET FILS", " FRÈRES"});
}

QByteArray firstName(Dice& dice)
{
    return pick(dice, {"Ahmed", "Ali", "Amine", "Élias", "Farid", "Hocine", "Karim", "Leïla", "Mohamed", "Nacer",
                       "Omar", "Rachid", "Samir", "Tayeb", "Yacine"});
}

/// Fills an empty exercise by plain SQL. Days follow one another: the slips of the boats that landed, their lines, sold
/// to the buyers of the day, then an invoice for each of these.
class Maker
{
public:
    Maker(Raw& file, const Size& size)
        : m_file(file)
        , m_size(size)
    {}

    void run()
    {
        m_file.run("begin");
        const std::vector<QByteArray> indexes = dropIndexes();
        catalogue();
        for (int day = 0; day < days; ++day)
            sell(day);
        movements("Recettes", "num_client", clients, 2, m_credits);
        std::vector<double> paid(size_t(boats) + 1);
        movements("Depenses", "Num_Chalutier", boats, 1, paid);
        accounts();
        for (const QByteArray& index : indexes)
            m_file.run(index.constData());
        m_file.run("commit");
    }

private:
    struct Line
    {
        int bordereau, boat, client, fish, crates;
        double weight, price, total;
    };
    struct Bill
    {
        qint64 num = 0;
        int crates = 0, lines = 0;
        double total = 0;
    };

    std::vector<QByteArray> dropIndexes()
    {
        std::vector<QByteArray> made;
        std::vector<QByteArray> names;
        sqlite3_stmt* rows = m_file.prepare("select sql, name from sqlite_schema where type = 'index' and sql notnull");
        while (sqlite3_step(rows) == SQLITE_ROW) {
            made.push_back(textOf(rows, 0).toUtf8());
            names.push_back(textOf(rows, 1).toUtf8());
        }
        sqlite3_reset(rows);
        for (const QByteArray& name : names)
            m_file.run(("drop index \"" + name + '"').constData());
        return made;
    }

    void catalogue()
    {
        m_file.run("insert into Permn (tel, fax, RC, compte, Commission, Consigne, TVA, nb_x) values "
                   "('041 00 00 00', '041 00 00 01', '02/00-1234567', '002 00012 0120000345 67', 15, 100, 0, 0);"
                   "insert into Familles_C (ordre, denom) values (1, 'Poissonniers'), (2, 'Restaurateurs'), "
                   "(3, 'Mandataires'), (4, 'Conserveries')");
        sqlite3_stmt* client = m_file.prepare("insert into Clients (ordre, nom, prenom, adr1, ville, tel, RC, famille) "
                                              "values (?, ?, ?, ?, ?, ?, ?, ?)");
        for (int i = 1; i <= clients; ++i) {
            bindAll(client, i, surname(m_dice), firstName(m_dice), QByteArray::number(i) + " rue du Port",
                    pick(m_dice, {"Ténès", "Cherchell", "Oran", "Béni Saf", "Alger"}),
                    "0550 " + QByteArray::number(100000 + i), "RC " + QByteArray::number(i), 1 + m_dice.below(4));
            m_file.execute(client);
        }
        sqlite3_stmt* owner = m_file.prepare("insert into Armateurs (ordre, nom, prenom) values (?, ?, ?)");
        sqlite3_stmt* boat =
            m_file.prepare("insert into Chalutiers (ordre, denom, matricule, armateur) values (?, ?, ?, ?)");
        for (int i = 1; i <= boats; ++i) {
            bindAll(owner, i, surname(m_dice), firstName(m_dice));
            m_file.execute(owner);
            bindAll(boat, i,
                    pick(m_dice, {"Étoile ", "Sidi ", "El ", "Nour "}) +
                        pick(m_dice, {"de Ténès", "Merouane", "Baraka", "El Bahr", "Amel"}) + ' ' +
                        QByteArray::number(i),
                    "TN " + QByteArray::number(1000 + i), i);
            m_file.execute(boat);
        }
        sqlite3_stmt* kind = m_file.prepare("insert into Poissons (ordre, denom) values (?, ?)");
        for (int i = 1; i <= fish; ++i) {
            bindAll(kind, i,
                    pick(m_dice, {"Sardine", "Anchois", "Merlan", "Rouget", "Pageot", "Crevette", "Sole", "Raie"}) +
                        ' ' + QByteArray::number(i));
            m_file.execute(kind);
        }
    }

    void sell(int day)
    {
        const std::vector<int> buyers = buyersOf();
        const bool billed = m_invoices < m_size.invoices;
        std::vector<Line> sold;
        for (int i = firstOf(day, m_size.bordereaux); i < firstOf(day + 1, m_size.bordereaux); ++i)
            land(day, i + 1, billed, buyers, sold);
        std::vector<Bill> bills(size_t(clients) + 1);
        if (billed)
            bill(day, buyers, sold, bills);
        for (const Line& line : sold)
            write(day, line, bills[size_t(line.client)].num);
    }

    /// As many buyers in a day as invoices are to be made in it, and some to spare.
    std::vector<int> buyersOf()
    {
        std::vector<int> chosen(size_t(m_size.invoices / days + 1));
        std::vector<bool> taken(size_t(clients) + 1);
        for (int& buyer : chosen) {
            do
                buyer = 1 + m_dice.below(clients);
            while (taken[size_t(buyer)]);
            taken[size_t(buyer)] = true;
        }
        return chosen;
    }

    /// One slip; two in turn have together twice the usual number of lines.
    void land(int day, int bordereau, bool billed, const std::vector<int>& buyers, std::vector<Line>& sold)
    {
        const int usual = m_size.lines / m_size.bordereaux;
        if (bordereau % 2 == 1)
            m_difference = bordereau < m_size.bordereaux ? m_dice.below(usual - 4) : 0;
        const int lines = bordereau % 2 == 1 ? usual + m_difference : usual - m_difference;
        const int boat = 1 + bordereau % boats;
        int crates = 0;
        double gross = 0;
        for (int i = 0; i < lines; ++i) {
            Line line{bordereau,
                      boat,
                      buyers[size_t(m_dice.below(int(buyers.size())))],
                      1 + m_dice.below(fish),
                      1 + m_dice.below(12),
                      m_dice.between(2, 90, 0.5),
                      m_dice.between(80, 2400, 10),
                      0};
            line.total = line.weight * line.price;
            crates += line.crates;
            gross += line.total;
            sold.push_back(line);
        }
        static constexpr const char* sql =
            "insert into Bordereaux (ordre, Date, MM, Num_Chalutier, Casiers, brut, Commission, MT_Commission, primes, "
            "frais, net, Libelle1, Libelle2, Frais1, Frais2, MT_Armateur, flag_f) values "
            "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
        if (!m_bordereau)
            m_bordereau = m_file.prepare(sql);
        const double taken = gross * commission / 100;
        const double ice = m_dice.between(500, 4000, 50);
        const double porters = m_dice.between(500, 4000, 50);
        bindAll(m_bordereau, bordereau, dayText(day), monthOf(day), boat, crates, gross, commission, taken, 0.0,
                ice + porters, gross - taken - ice - porters, QByteArray("Glace"), QByteArray("Porte faix"), ice,
                porters, gross - taken, int(billed));
        m_file.execute(m_bordereau);
    }

    void bill(int day, const std::vector<int>& buyers, const std::vector<Line>& sold, std::vector<Bill>& bills)
    {
        for (const Line& line : sold) {
            Bill& bill = bills[size_t(line.client)];
            bill.crates += line.crates;
            bill.total += line.total;
            ++bill.lines;
        }
        if (!m_invoice)
            m_invoice =
                m_file.prepare("insert into Factures (ordre, Date, MM, num_client, Casiers, Total_HT, Consigne, "
                               "Total, Nb_lignes, Flag_R) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
        for (const int buyer : buyers) {
            Bill& bill = bills[size_t(buyer)];
            if (bill.lines == 0 || m_invoices == m_size.invoices)
                continue;
            bill.num = ++m_invoices;
            const double deposit = bill.crates * crateDeposit;
            bindAll(m_invoice, bill.num, dayText(day), monthOf(day), buyer, bill.crates, bill.total, deposit,
                    bill.total + deposit, bill.lines, m_dice.below(2));
            m_file.execute(m_invoice);
            m_debits[size_t(buyer)] += bill.total;
            m_crates[size_t(buyer)] += bill.crates;
        }
    }

    void write(int day, const Line& line, qint64 invoice)
    {
        if (!m_line)
            m_line =
                m_file.prepare("insert into L_Vente (num_bordereau, Num_Chalutier, num_client, Num_Poisson, Date, "
                               "MM, Casiers, poids, PU, Total, Num_Facture) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
        bindAll(m_line, line.bordereau, line.boat, line.client, line.fish, dayText(day), monthOf(day), line.crates,
                line.weight, line.price, line.total, invoice > 0 ? invoice : nonFacture);
        m_file.execute(m_line);
    }

    void movements(const QByteArray& table, const QByteArray& counterpart, int counterparts, int code,
                   std::vector<double>& sums)
    {
        sqlite3_stmt* row =
            m_file.prepare(("insert into " + table + " (Date, MM, montant, mode, objet, contrepartie, " + counterpart +
                            ") values (?, ?, ?, ?, ?, ?, ?)")
                               .constData());
        for (int i = 0; i < m_size.movements; ++i) {
            const int day = int(qint64(i) * days / m_size.movements);
            const int who = 1 + m_dice.below(counterparts);
            const double amount = m_dice.between(1000, 90000, 100);
            sums[size_t(who)] += amount;
            bindAll(row, dayText(day), monthOf(day), amount, m_dice.below(3), QByteArray("Versement"), code, who);
            m_file.execute(row);
        }
    }

    void accounts()
    {
        sqlite3_stmt* client = m_file.prepare("update Clients set Debit = ?1, Credit = ?2, Solde = ?2 - ?1, "
                                              "Casiers = ?3, Diff = ?3 where num = ?4");
        for (int i = 1; i <= clients; ++i) {
            bindAll(client, m_debits[size_t(i)], m_credits[size_t(i)], m_crates[size_t(i)], i);
            m_file.execute(client);
        }
    }

    Raw& m_file;
    const Size m_size;
    Dice m_dice{20260101};
    int m_invoices = 0;
    int m_difference = 0;
    std::vector<double> m_debits = std::vector<double>(size_t(clients) + 1);
    std::vector<double> m_credits = std::vector<double>(size_t(clients) + 1);
    std::vector<int> m_crates = std::vector<int>(size_t(clients) + 1);
    sqlite3_stmt* m_bordereau = nullptr;
    sqlite3_stmt* m_invoice = nullptr;
    sqlite3_stmt* m_line = nullptr;
};

void copyInto(const QString& file, const QDir& folder)
{
    const QString target = folder.filePath(QFileInfo(file).fileName());
    QFile::remove(target);
    if (!QFile::copy(file, target))
        throw std::runtime_error("cannot copy " + file.toStdString());
    QFile::setPermissions(target, QFile::permissions(target) | QFileDevice::WriteOwner);
}

/// A folder in which the program could be started.
QString prepareFolder(const QString& name)
{
    const QDir folder(QStringLiteral(BENCH_FOLDER) + u'/' + name);
    if (!folder.mkpath(u"."_s))
        throw std::runtime_error("cannot make " + folder.path().toStdString());
    for (const QString& file : QDir(QStringLiteral(BENCH_TEMPLATES)).entryList({u"*.rpt"_s}, QDir::Files))
        copyInto(QStringLiteral(BENCH_TEMPLATES) + u'/' + file, folder);
    copyInto(QStringLiteral(BENCH_INSTALLATION "/system.mdw"), folder);
    for (const QString& file : {u"TAL00.mdb"_s, u"TAL2_CFG.CFG"_s})
        copyInto(QStringLiteral(BENCH_DELIVERED) + u'/' + file, folder);
    const Installation installation(folder.path());
    const auto configuration = Configuration::lire(installation.configuration());
    if (!configuration || PointeurAnnee{year, 0}.ecrire(installation.pointeurAnnee(configuration->CodeFichier)))
        throw std::runtime_error("no configuration in " + folder.path().toStdString());
    return folder.path();
}

bool isWhole(const QString& path, const Size& size)
{
    if (!QFile::exists(path))
        return false;
    Raw file(path);
    return file.number("select count(*) from L_Vente") == size.lines &&
           file.number("select count(*) from Bordereaux") == size.bordereaux &&
           file.number("select count(*) from Factures") == size.invoices &&
           file.number("select count(*) from Depenses") == size.movements;
}

} // namespace

QString fileIn(const QString& folder)
{
    return Installation(folder).base(year);
}

QString folderOf(const Size& size)
{
    const QString folder = prepareFolder(QString::fromLatin1(size.name));
    const QString path = fileIn(folder);
    if (isWhole(path, size))
        return folder;
    std::fprintf(stderr, "making the exercise of %d sale lines...\n", size.lines);
    const QString begun = path + u".debut"_s;
    QFile::remove(path);
    QFile::remove(begun);
    creerExerciceVide(begun);
    {
        Raw file(begun, Raw::Filling);
        Maker(file, size).run();
    }
    if (!QFile::rename(begun, path) || !isWhole(path, size))
        throw std::runtime_error("the exercise has not the rows that it should have");
    return folder;
}

void copyExercise(const QString& from, const QString& to)
{
    QFile::remove(fileIn(to));
    if (!QFile::copy(fileIn(from), fileIn(to)))
        throw std::runtime_error("cannot copy the exercise");
}

QString workingFolder(const QString& subject)
{
    static QHash<QString, QString> folders;
    QString& folder = folders[subject];
    if (folder.isEmpty()) {
        folder = prepareFolder(subject);
        copyExercise(folderOf(medium), folder);
    }
    return folder;
}

QString folderOfOpenLines()
{
    static const QString folder = [] {
        const QString made = prepareFolder(u"ouvert"_s);
        copyExercise(folderOf(medium), made);
        Raw(fileIn(made), Raw::Filling)
            .run("begin; delete from Factures; update L_Vente set Num_Facture = -1; update Bordereaux set flag_f = 0;"
                 "update Clients set Debit = 0, Solde = Credit, Casiers = 0, Diff = 0; commit; vacuum");
        return made;
    }();
    return folder;
}

std::unique_ptr<Exercice> open(const QString& folder)
{
    const Installation installation(folder);
    auto exercise = std::make_unique<Exercice>(installation, *Configuration::lire(installation.configuration()),
                                               PointeurAnnee{year, 0});
    exercise->OuvrirBase();
    exercise->LireParametres();
    return exercise;
}

} // namespace talor::bench
