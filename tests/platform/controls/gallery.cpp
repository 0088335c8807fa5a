// Pictures of every control in its states, for the eye: talor_gallery <folder>. QT_SCALE_FACTOR=2 draws them twice as
// large.

#include "platform/controls/command_bar.h"
#include "platform/controls/dialog.h"
#include "platform/controls/entry_panel.h"
#include "platform/controls/grid.h"
#include "platform/controls/icons.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"
#include "platform/controls/message.h"
#include "platform/controls/named.h"
#include "platform/controls/number_pad.h"
#include "platform/controls/text_field.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QListWidget>
#include <QMenuBar>
#include <QProgressBar>
#include <QRadioButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using namespace controls;

namespace {

QDir folder;

void keep(QWidget& window, const QString& name)
{
    window.show();
    window.activateWindow();
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    window.grab().save(folder.filePath(name + u".png"_s));
    window.hide();
}

class CardFile : public Dialog
{
public:
    explicit CardFile(bool entering)
        : Dialog(u"j_Client", u"Clients"_s)
    {
        auto* grid = named(new Grid, u"Grid1");
        grid->setColumns({{u"N°"_s, 600, Qt::AlignHCenter},
                          {u"Nom"_s, 2020},
                          {u"Prénom"_s, 2020},
                          {u"Téléphone"_s, 1170},
                          {u"Ville"_s, 1310},
                          {u"Solde"_s, 1420, Qt::AlignRight}});
        grid->setInk([](int row, int column) { return column == 5 && row % 3 == 0 ? Ink::Owed : Ink::Normal; });
        grid->setRows(40, [](int row, int column) {
            const QStringList cells{QString::number(row + 1),
                                    u" BENHAMOUDA"_s,
                                    u" Abdelkader"_s,
                                    u" 041 33 21 0%1"_s.arg(row % 10),
                                    u" Oran"_s,
                                    row % 3 == 0 ? u"-12 450.00 "_s : u"1 208 300.50 "_s};
            return cells.at(column);
        });
        grid->selectRow(3);
        body()->addWidget(grid, 1);

        auto* panel = new EntryPanel(u"SSFrame1", u"SSPanel2");
        panel->setTitle(u"MODIFICATION"_s);
        auto* name = new TextField(TextField::Kind::Capitals);
        name->setText(u"BENHAMOUDA"_s);
        panel->addField(u"Nom"_s, name);
        panel->addField(u"Prénom"_s, new TextField(TextField::Kind::FirstCapital));
        panel->addField(u"Adresse"_s, new TextField);
        panel->nextColumn();
        panel->addFields(u"Date"_s, {new TextField(TextField::Kind::Date), iconButton(u"calendrier", u"Calendrier"_s)});
        panel->addField(u"Observations"_s, new MemoField);
        panel->addAccept(u"Image1", 0);
        auto* cancel = panel->addCancel(u"Image1", 1);
        panel->setVisible(entering);
        grid->setEnabled(!entering);
        body()->addWidget(panel);

        auto* bar = new CommandBar(u"Crecettes"_s);
        bar->add(0, u"nouveau", u"Nouveau"_s);
        bar->add(1, u"modifier", u"Modifier"_s);
        bar->add(2, u"supprimer", u"Supprimer"_s);
        bar->add(4, u"trier-numero", u"sur N° d'ordre"_s);
        bar->add(5, u"trier-alpha", u"Ordre Alph."_s);
        bar->add(6, u"appeler", u"Appeler"_s)->setEnabled(false);
        bar->addStretch();
        auto* quit = bar->add(3, u"quitter", u"Quitter"_s);
        bar->setAllVisible(!entering);
        commands()->addWidget(bar);
        setCancel({cancel, quit});
        if (entering)
            name->setFocus();
        else
            grid->setFocus();
    }
};

class Register : public Dialog
{
public:
    Register()
        : Dialog(u"F_Bord", u"Bordereaux"_s)
    {
        auto* titles = new QLabel(u"Bordereaux du mois de Novembre  —  Ensemble des embarcations"_s);
        setRole(titles, Role::Subtitle);
        band()->addWidget(titles);
        auto* grid = named(new Grid, u"Grid1");
        const Qt::Alignment centre = Qt::AlignHCenter;
        const Qt::Alignment right = Qt::AlignRight;
        grid->setColumns({{u"N°"_s, 940, centre},
                          {u"Date"_s, 1280, centre},
                          {u"Embarcation"_s, 2320},
                          {u"Cas."_s, 580, centre},
                          {u"Brut"_s, 1420, right},
                          {u"Primes"_s, 1060, right},
                          {u"Comm."_s, 1040, right},
                          {u"Frais"_s, 1080, right},
                          {u"Net"_s, 1440, right},
                          {u"Fact"_s, 630, centre},
                          {u"Déc."_s, 630, centre}});
        grid->setRows(22, [](int row, int column) {
            const QStringList cells{QString::number(row + 1),
                                    u"15/11/2026"_s,
                                    u"Sidi Abderrahmane II "_s,
                                    u"120"_s,
                                    u"1 248 500.00 "_s,
                                    u"12 000.00 "_s,
                                    u"185 475.00 "_s,
                                    u"42 350.00 "_s,
                                    u"1 008 675.00 "_s,
                                    u"OUI"_s,
                                    u"14"_s};
            return cells.at(column);
        });
        grid->setMark([](int row) { return row == 6; });
        grid->selectRow(21);
        body()->addWidget(grid, 1);
        auto* bar = new CommandBar(u"Crecettes"_s);
        bar->add(3, u"nouveau", u"Nouveau"_s)->setPrimary();
        bar->add(1, u"modifier", u"Modifier"_s);
        bar->add(2, u"supprimer", u"Supprimer"_s);
        bar->add(0, u"imprimer", u"Imprimer"_s);
        bar->add(4, u"filtre", u"Filtre"_s);
        bar->addStretch();
        bar->add(5, u"quitter", u"Quitter"_s);
        commands()->addWidget(bar);
        grid->setFocus();
    }
};

class Pieces : public Dialog
{
public:
    Pieces()
        : Dialog(u"Pieces", u"Les pièces"_s)
    {
        auto* columns = new QHBoxLayout;
        columns->setSpacing(16);
        body()->addLayout(columns);
        columns->addWidget(fields());
        auto* middle = new QVBoxLayout;
        middle->addWidget(choices());
        middle->addWidget(tabs());
        columns->addLayout(middle);
        auto* last = new QVBoxLayout;
        auto* pad = new NumberPad({u"SSCommand11"_s, u"Label11"_s, u"Image22(0)"_s});
        pad->findChild<QLabel*>(u"Label11"_s)->setText(u"1250.50"_s);
        last->addWidget(pad);
        last->addStretch();
        columns->addLayout(last);
    }

private:
    QWidget* fields()
    {
        auto* panel = new EntryPanel(u"SSFrame1", u"SSPanel2");
        panel->setTitle(u"NOUVEL ACHAT"_s);
        auto* focused = new TextField(TextField::Kind::Digits);
        focused->setText(u"128"_s);
        auto* owner = new QComboBox;
        owner->addItems({u"BENHAMOUDA  Abdelkader"_s, u"KACI  Mourad"_s});
        auto* disabled = new TextField;
        disabled->setText(u"Champ inactif"_s);
        disabled->setEnabled(false);
        auto* greyCombo = new QComboBox;
        greyCombo->addItem(u"Choix inactif"_s);
        greyCombo->setEnabled(false);
        auto* amount = new TextField(TextField::Kind::Amount);
        amount->setText(u"1250.50"_s);
        auto* value = valueLabel();
        value->setText(u"185 475.00 "_s);
        auto* total = totalLabel();
        total->setText(u"1 008 675.00 "_s);
        auto* owed = valueLabel();
        owed->setText(u"-12 450.00 "_s);
        setOwed(owed, true);
        panel->addFields(u"Client"_s, {focused, iconButton(u"recherche", u"Chercher"_s)});
        panel->addField(u"Armateur"_s, owner);
        panel->addField(u"Date"_s, new TextField(TextField::Kind::Date));
        panel->addField(u"P.U."_s, amount);
        panel->addField(u"Inactif"_s, disabled);
        panel->addField(u"Choix"_s, greyCombo);
        panel->addField(u"Montant"_s, value);
        panel->addField(u"Total Net"_s, total);
        panel->addField(u"Doit"_s, owed);
        panel->addField(u"Observations"_s, new MemoField);
        panel->addWide(hintLabel(u"Entrée passe au champ suivant ; au dernier champ, la ligne est enregistrée."_s));
        panel->addAccept(u"Image1", 0);
        panel->addCancel(u"Image1", 1);
        focused->setFocus();
        return panel;
    }

    QWidget* choices()
    {
        auto* panel = new EntryPanel(u"SSFrame2", u"SSPanel3");
        panel->setTitle(u"Classement"_s);
        auto* first = new QRadioButton(u"Ordre manuel"_s);
        first->setChecked(true);
        panel->addWide(first);
        panel->addWide(new QRadioButton(u"Ordre alphabétique"_s));
        auto* checked = new QCheckBox(u"Factures réglées"_s);
        checked->setChecked(true);
        panel->addWide(checked);
        panel->addWide(new QCheckBox(u"Simuler seulement"_s));
        auto* grey = new QCheckBox(u"Inactif"_s);
        grey->setChecked(true);
        grey->setEnabled(false);
        panel->addWide(grey);
        auto* bar = new QProgressBar;
        bar->setValue(40);
        panel->addWide(bar);
        return panel;
    }

    QWidget* tabs()
    {
        auto* list = new QListWidget;
        list->addItems({u"Janvier"_s, u"Février"_s, u"Mars"_s, u"Avril"_s});
        list->setCurrentRow(1);
        list->setMinimumHeight(110);
        auto* empty = new Grid;
        empty->setColumns({{u"N°"_s, 600}, {u"Nom"_s, 2000}});
        empty->setEmptyText(u"Aucun client enregistré"_s);
        auto* tabs = new QTabWidget;
        tabs->addTab(empty, u" Mois"_s);
        tabs->addTab(list, u" Période"_s);
        return tabs;
    }
};

class IconSheet : public QWidget
{
public:
    IconSheet()
    {
        auto* grid = new QGridLayout(this);
        const QStringList files = QDir(u":/talor/icons"_s).entryList();
        constexpr int columns = 12;
        for (int i = 0; i < files.size(); ++i) {
            const QString name = files[i].chopped(4);
            auto* cell = new QToolButton;
            cell->setIcon(icon(name));
            cell->setIconSize({40, 40});
            cell->setText(name);
            cell->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
            cell->setMinimumSize(100, 76);
            grid->addWidget(cell, i / columns, i % columns);
        }
        auto* sizes = new QHBoxLayout;
        for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
            auto* label = new QLabel;
            label->setPixmap(applicationIcon().pixmap(QSize(size, size), devicePixelRatioF()));
            sizes->addWidget(label, 0, Qt::AlignBottom);
        }
        sizes->addStretch();
        grid->addLayout(sizes, grid->rowCount(), 0, 1, columns);
    }
};

void menus()
{
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins({});
    auto* bar = new QMenuBar;
    for (const auto& caption : {u"&Fichiers"_s, u"&Mouvements"_s, u"&Comptes"_s, u"&Editions"_s, u"&Aide"_s})
        bar->addMenu(caption);
    column->addWidget(bar);
    column->addStretch();
    window.resize(700, 80);
    keep(window, u"menu"_s);

    QMenu menu;
    menu.addMenu(u"&Paramétrages"_s);
    menu.addAction(u"A&gents"_s);
    menu.addAction(u"&Armateurs"_s, Qt::CTRL | Qt::Key_A, [] {});
    menu.addSeparator();
    menu.addAction(u"&Clôturer l'exercice"_s)->setEnabled(false);
    QAction* checked = menu.addAction(u"Résolution d'origine"_s);
    checked->setCheckable(true);
    checked->setChecked(true);
    menu.addAction(u"&Quitter"_s);
    keep(menu, u"menu-ouvert"_s);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    applyLook(application);
    folder = QDir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"."_s);
    folder.mkpath(u"."_s);

    CardFile browsing(false);
    keep(browsing, u"fiches"_s);
    CardFile entering(true);
    keep(entering, u"fiche-en-saisie"_s);
    Register journal;
    keep(journal, u"registre"_s);
    Pieces pieces;
    keep(pieces, u"pieces"_s);
    IconSheet icons;
    keep(icons, u"icones"_s);
    menus();
    Message refusal(nullptr, {u"Saisie incomplète"_s, u"ATTENTION"_s, MessageIcon::Stop, Buttons::Ok});
    keep(refusal, u"message-refus"_s);
    Message question(
        nullptr, {u"Confirmer supression de ligne N°  3"_s, u"Confirmation"_s, MessageIcon::Question, Buttons::YesNo});
    keep(question, u"message-question"_s);
    Message longText(nullptr, {u"La base de données semble endommagée\nChargement du module de réparation. Les lignes "
                               u"déjà enregistrées de l'exercice restent dans le fichier et seront relues."_s,
                               u"TALOR"_s, MessageIcon::Warning, Buttons::OkCancel});
    keep(longText, u"message-long"_s);
    Message notice(nullptr, {u"Bordereau supprimé avec succès"_s, u"TALOR"_s, MessageIcon::Information, Buttons::Ok});
    keep(notice, u"message-avis"_s);
    return 0;
}
