// Pictures of the controls, the boxes and the icons in their states, for the eye: talor_gallery <folder>. The dialogs
// themselves are in the demonstration's pictures. QT_SCALE_FACTOR=2 draws them twice as large.

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
#include <QProgressBar>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>

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

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    applyLook(application);
    folder = QDir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"."_s);
    folder.mkpath(u"."_s);

    Pieces pieces;
    keep(pieces, u"pieces"_s);
    IconSheet icons;
    keep(icons, u"icones"_s);
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
