#include "platform/code_page.h"
#include "platform/rich_text.h"
#include "platform/rtf_style.h"

#include <QFont>
#include <QRgb>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>

#include <map>

namespace rich_text {

namespace {

const QString prologue = QStringLiteral("{\\rtf1\\ansi\\ansicpg1254\\uc1");

// Letters of the code page by their byte, all others by their code units with a question mark for old readers.
void append_letter(QString& out, QChar letter) {
    const char16_t unit = letter.unicode();
    if (unit == u'\\' || unit == u'{' || unit == u'}')
        out += u'\\' + letter;
    else if (unit == u'\t')
        out += QStringLiteral("\\tab ");
    else if (unit == QChar::LineSeparator)
        out += QStringLiteral("\\line ");
    else if (unit >= 0x20 && unit < 0x7F)
        out += letter;
    else if (const int code = code_page::code_of(letter); code >= 0x80)
        out += QStringLiteral("\\'") + QString::number(code, 16);
    else if (unit >= 0x80)
        out += QStringLiteral("\\u%1?").arg(static_cast<qint16>(unit));
}

void append_text(QString& out, QStringView text) {
    for (const QChar letter : text) append_letter(out, letter);
}

// Collects the fonts and colours that the runs use.
class Writer {
public:
    QString document(const QTextDocument& document) {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) paragraph(block);
        return prologue + font_table() + color_table() + u'\n' + body_ + u'}';
    }

private:
    void paragraph(const QTextBlock& block) {
        body_ += QStringLiteral("\\pard") + alignment(block.blockFormat());
        behind_word_ = true;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.charFormat().isImageFormat()) continue;
            select(style_of(fragment.charFormat()));
            if (behind_word_) body_ += u' ';
            behind_word_ = false;
            append_text(body_, fragment.text());
        }
        body_ += QStringLiteral("\\par\n");
    }

    static QString alignment(const QTextBlockFormat& format) {
        const Qt::Alignment side = format.alignment();
        if (side & Qt::AlignRight) return QStringLiteral("\\qr");
        if (side & Qt::AlignHCenter) return QStringLiteral("\\qc");
        if (side & Qt::AlignJustify) return QStringLiteral("\\qj");
        return {};
    }

    void select(const rtf::Style& style) {
        if (style == style_) return;
        style_ = style;
        body_ += QStringLiteral("\\plain");
        if (style.font >= 0) body_ += QStringLiteral("\\f%1").arg(style.font);
        if (style.half_points > 0) body_ += QStringLiteral("\\fs%1").arg(style.half_points);
        if (style.color > 0) body_ += QStringLiteral("\\cf%1").arg(style.color);
        if (style.background > 0) body_ += QStringLiteral("\\highlight%1").arg(style.background);
        if (style.bold) body_ += QStringLiteral("\\b");
        if (style.italic) body_ += QStringLiteral("\\i");
        if (style.underline) body_ += QStringLiteral("\\ul");
        if (style.strike) body_ += QStringLiteral("\\strike");
        if (style.script == rtf::Script::above) body_ += QStringLiteral("\\super");
        if (style.script == rtf::Script::below) body_ += QStringLiteral("\\sub");
        behind_word_ = true;
    }

    rtf::Style style_of(const QTextCharFormat& format) {
        rtf::Style style;
        const QFont font = format.font();
        if (format.hasProperty(QTextFormat::FontFamilies)) style.font = font_number(font.families().value(0));
        if (format.hasProperty(QTextFormat::FontPointSize))
            style.half_points = qRound(format.fontPointSize() * 2);
        else if (format.hasProperty(QTextFormat::FontPixelSize))
            style.half_points = qRound(format.intProperty(QTextFormat::FontPixelSize) * 1.5);  // 96 to the inch
        if (format.foreground().style() != Qt::NoBrush) style.color = color_number(format.foreground().color());
        if (const QBrush back = format.background(); back.style() != Qt::NoBrush && back.color().alpha() > 0)
            style.background = color_number(back.color());
        if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) style.script = rtf::Script::above;
        if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) style.script = rtf::Script::below;
        style.bold = font.bold();
        style.italic = font.italic();
        style.underline = font.underline();
        style.strike = font.strikeOut();
        return style;
    }

    int font_number(const QString& name) {
        const auto [found, added] = fonts_.try_emplace(name, static_cast<int>(fonts_.size()));
        if (added) font_entries_ += font_entry(found->second, name);
        return found->second;
    }

    static QString font_entry(int number, QString name) {
        QString entry = QStringLiteral("{\\f%1\\fnil\\fcharset162 ").arg(number);
        append_text(entry, name.remove(u';'));
        return entry + QStringLiteral(";}");
    }

    int color_number(const QColor& color) {
        const auto [found, added] = colors_.try_emplace(color.rgb(), static_cast<int>(colors_.size()) + 1);
        if (added)
            color_entries_ +=
                QStringLiteral("\\red%1\\green%2\\blue%3;").arg(color.red()).arg(color.green()).arg(color.blue());
        return found->second;
    }

    QString font_table() const {
        return fonts_.empty() ? QString() : QStringLiteral("{\\fonttbl") + font_entries_ + u'}';
    }
    QString color_table() const {
        return colors_.empty() ? QString() : QStringLiteral("{\\colortbl ;") + color_entries_ + u'}';
    }

    QString body_;
    bool behind_word_ = false;  // a control word needs a blank before text
    rtf::Style style_;
    std::map<QString, int> fonts_;
    std::map<QRgb, int> colors_;
    QString font_entries_;
    QString color_entries_;
};

}  // namespace

QString from_plain(const QString& text) {
    QString rtf = prologue + u' ';
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool carriage_return = text[i] == u'\r';
        if (carriage_return && i + 1 < text.size() && text[i + 1] == u'\n') continue;
        if (carriage_return || text[i] == u'\n')
            rtf += QStringLiteral("\\par\n");
        else
            append_letter(rtf, text[i]);
    }
    return rtf + QStringLiteral("\\par}");
}

QString save(const QTextDocument& document) {
    return Writer().document(document);
}

}  // namespace rich_text
