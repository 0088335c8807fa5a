#include "platform/controls/look.h"

#include "platform/controls/icons.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTranslator>
#include <QWidget>

#include <clocale>

// Q_INIT_RESOURCE names a symbol of the global namespace; a static library would drop the resources without it.
static void initResources()
{
    Q_INIT_RESOURCE(talor);
}

namespace controls {

using namespace Qt::StringLiterals;

namespace {

QPalette lightPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, colour::sand);
    palette.setColor(QPalette::WindowText, colour::ink);
    palette.setColor(QPalette::Base, colour::paper);
    palette.setColor(QPalette::AlternateBase, colour::band);
    palette.setColor(QPalette::Text, colour::ink);
    palette.setColor(QPalette::PlaceholderText, colour::disabled);
    palette.setColor(QPalette::Button, colour::paper);
    palette.setColor(QPalette::ButtonText, colour::ink);
    palette.setColor(QPalette::Highlight, colour::focus);
    palette.setColor(QPalette::HighlightedText, colour::paper);
    palette.setColor(QPalette::ToolTipBase, colour::ink);
    palette.setColor(QPalette::ToolTipText, colour::paper);
    palette.setColor(QPalette::Link, colour::blue);
    palette.setColor(QPalette::Light, colour::paper);
    palette.setColor(QPalette::Midlight, colour::sand);
    palette.setColor(QPalette::Mid, colour::line);
    palette.setColor(QPalette::Dark, colour::muted);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colour::disabled);
    palette.setColor(QPalette::Disabled, QPalette::Base, colour::sand);
    return palette;
}

QFont textFont()
{
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"DejaVu Sans"_s});
    font.setPointSize(11);
    return font;
}

/// The style sheet names colours as "@accent"; longer names come first so that "@sand" leaves "@sandDeep" whole.
QString styleSheet()
{
    QFile file(u":/talor/look.qss"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The style sheet is missing from the program's resources");
    QString sheet = QString::fromUtf8(file.readAll());
    const std::pair<QString, QColor> names[] = {
        {u"@sandDeep"_s, colour::sandDeep},
        {u"@sand"_s, colour::sand},
        {u"@blueLight"_s, colour::blueLight},
        {u"@blue"_s, colour::blue},
        {u"@accentDeep"_s, colour::accentDeep},
        {u"@accent"_s, colour::accent},
        {u"@ink"_s, colour::ink},
        {u"@muted"_s, colour::muted},
        {u"@disabled"_s, colour::disabled},
        {u"@line"_s, colour::line},
        {u"@paper"_s, colour::paper},
        {u"@band"_s, colour::band},
        {u"@navy"_s, colour::navy},
        {u"@selected"_s, colour::selected},
        {u"@focus"_s, colour::focus},
        {u"@owed"_s, colour::owed},
    };
    for (const auto& [name, value] : names)
        sheet.replace(name, value.name());
    return sheet;
}

QString nameOf(Role role)
{
    switch (role) {
    case Role::Primary:
        return u"primary"_s;
    case Role::Title:
        return u"title"_s;
    case Role::Subtitle:
        return u"subtitle"_s;
    case Role::Section:
        return u"section"_s;
    case Role::Caption:
        return u"caption"_s;
    case Role::Value:
        return u"value"_s;
    case Role::Total:
        return u"total"_s;
    case Role::Hint:
        return u"hint"_s;
    case Role::Panel:
        return u"panel"_s;
    case Role::Sheet:
        return u"sheet"_s;
    case Role::Display:
        return u"display"_s;
    }
    return {};
}

/// A widget that the style sheet has dressed already must be dressed anew; any other is when it is first shown.
void dress(QWidget* widget, const char* property, const QVariant& value)
{
    if (widget->property(property) == value)
        return;
    widget->setProperty(property, value);
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void speakFrench(QApplication& application)
{
    auto* texts = new QTranslator(&application);
    if (texts->load(u"qtbase_fr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(texts);
    else
        delete texts;
}

} // namespace

void setRole(QWidget* widget, Role role)
{
    dress(widget, "role", nameOf(role));
}

void setOwed(QWidget* label, bool owed)
{
    dress(label, "owed", owed);
}

void setInHand(QWidget* label, bool inHand)
{
    dress(label, "inHand", inHand);
}

void applyLook(QApplication& application)
{
    initResources();
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_NUMERIC, "C");
    speakFrench(application);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(lightPalette());
    QApplication::setFont(textFont());
    QApplication::setWindowIcon(applicationIcon());
    application.setStyleSheet(styleSheet());
}

} // namespace controls
