#include "platform/paper_fonts.h"

#include <QFontDatabase>

namespace {

// Amounts are set right by the rule of 90 twips a character, which is the figure width of a narrow sans at 10 points.
QString paper_family() {
    for (const char* family : {"Liberation Sans Narrow", "Arial Narrow"})
        if (QFontDatabase::hasFamily(QString::fromLatin1(family))) return QString::fromLatin1(family);
    return QStringLiteral("Arial");
}

// What takes the place of a screen font that the machine does not have.
QString substitute(const QString& family) {
    if (family.startsWith(QStringLiteral("Courier"))) return QStringLiteral("Liberation Mono");
    if (family.startsWith(QStringLiteral("Times"))) return QStringLiteral("Liberation Serif");
    return QStringLiteral("Liberation Sans");
}

QFont make_font(const PrintSurface::Font& told) {
    QFont font;
    if (told.family.isEmpty())
        font.setFamily(paper_family());
    else
        font.setFamily(QFontDatabase::hasFamily(told.family) ? told.family : substitute(told.family));
    font.setPixelSize(std::max(1, qRound(told.points * 20)));
    font.setBold(told.bold);
    font.setItalic(told.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

const PaperFonts::Face& PaperFonts::face(const PrintSurface::Font& font) {
    for (const Face& face : faces_)
        if (face.told == font) return face;
    const QFont made = make_font(font);
    return faces_.emplace_back(Face{font, made, QFontMetricsF(made)});
}
