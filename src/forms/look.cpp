#include "forms/look.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>

#include <utility>
#include <vector>

static void load_resources() {
    Q_INIT_RESOURCE(forms);
}

namespace look {

namespace {

constexpr double font_size = 9.5;  // points

struct Scheme {
    const char* ground;
    const char* field;
    const char* panel;
    const char* text;
    const char* muted;
    const char* line;
    const char* button;
    const char* hover;
    const char* pressed;
    const char* alarm;
    const char* warning;
};

constexpr Scheme light{"#F4F5F2", "#FFFFFF", "#FAFAF8", "#1E2326", "#5A6269", "#C6CAC4",
                       "#FFFFFF", "#E8EEF4", "#D3E1EE", "#FFD6D2", "#B3261E"};
constexpr Scheme dark{"#23282C", "#1A1E21", "#282E32", "#E6E8E6", "#A3ABB1", "#4A5157",
                      "#30373C", "#3A444C", "#234A6E", "#7A2A26", "#FF8A80"};
constexpr const char* accent = "#1F5C99";

QPalette palette_of(const Scheme& scheme) {
    QPalette palette(QColor(scheme.button), QColor(scheme.ground));
    palette.setColor(QPalette::Base, QColor(scheme.field));
    palette.setColor(QPalette::AlternateBase, QColor(scheme.panel));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(scheme.text));
        palette.setColor(QPalette::Disabled, role, QColor(scheme.muted));
    }
    palette.setColor(QPalette::ToolTipBase, QColor(scheme.panel));
    palette.setColor(QPalette::PlaceholderText, QColor(scheme.muted));
    palette.setColor(QPalette::Highlight, QColor(accent));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(scheme.ground));
    palette.setColor(QPalette::Disabled, QPalette::Button, QColor(scheme.ground));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(scheme.line));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(scheme.text));
    return palette;
}

QString style_sheet(const Scheme& scheme) {
    QFile file(QStringLiteral(":/forms/kurvo.qss"));
    file.open(QIODevice::ReadOnly);
    QString sheet = QString::fromUtf8(file.readAll());
    const std::vector<std::pair<QLatin1String, const char*>> names{
        {QLatin1String("@ground"), scheme.ground},   {QLatin1String("@field"), scheme.field},
        {QLatin1String("@panel"), scheme.panel},     {QLatin1String("@text"), scheme.text},
        {QLatin1String("@muted"), scheme.muted},     {QLatin1String("@line"), scheme.line},
        {QLatin1String("@button"), scheme.button},   {QLatin1String("@hover"), scheme.hover},
        {QLatin1String("@pressed"), scheme.pressed}, {QLatin1String("@alarm"), scheme.alarm},
        {QLatin1String("@warning"), scheme.warning}, {QLatin1String("@accent"), accent}};
    for (const auto& [name, color] : names) sheet.replace(name, QLatin1String(color));
    return sheet;
}

QIcon icon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 256}) icon.addFile(QStringLiteral(":/forms/kurvo-%1.png").arg(size));
    return icon;
}

}  // namespace

void apply(QApplication& application) {
    load_resources();
    const Scheme& scheme = application.palette().color(QPalette::Window).lightness() < 128 ? dark : light;
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(palette_of(scheme));
    QFont font = application.font();
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Segoe UI"), QStringLiteral("Arial")});
    font.setPointSizeF(font_size);
    application.setFont(font);
    application.setStyleSheet(style_sheet(scheme));
    // Under Wayland a desktop takes the icon from the menu's entry of this name.
    QApplication::setDesktopFileName(QStringLiteral("org.kurvo.Kurvo"));
    QApplication::setWindowIcon(icon());
}

}  // namespace look
