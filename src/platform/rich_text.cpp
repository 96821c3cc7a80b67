#include "platform/rich_text.h"

#include "platform/rtf_reader.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

namespace rich_text {

namespace {

bool is_rtf(const QString& value) {
    return value.startsWith(QStringLiteral("{\\rtf"));
}

QString with_line_feeds(const QString& text) {
    if (!text.contains(u'\r')) return text;
    QString result = text;
    return result.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

// A paragraph that follows another one begins a line; the last one may lack its end.
class PlainSink : public rtf::Sink {
public:
    void run(const QString& text, const rtf::Style&, const rtf::Tables&) override {
        begin();
        text_ += text;
    }
    void paragraph_end(rtf::Alignment) override {
        begin();
        behind_paragraph_ = true;
    }
    void document_end(rtf::Alignment) override {}

    QString text() { return text_.replace(QChar::LineSeparator, u'\n'); }

private:
    void begin() {
        if (behind_paragraph_) text_ += u'\n';
        behind_paragraph_ = false;
    }

    QString text_;
    bool behind_paragraph_ = false;
};

class DocumentSink : public rtf::Sink {
public:
    explicit DocumentSink(QTextDocument& document) : cursor_(&document) { cursor_.beginEditBlock(); }
    ~DocumentSink() override { cursor_.endEditBlock(); }

    void run(const QString& text, const rtf::Style& style, const rtf::Tables& tables) override {
        begin();
        if (style != style_) {
            style_ = style;
            format_ = format_of(style, tables);
        }
        cursor_.insertText(text, format_);
    }
    void paragraph_end(rtf::Alignment alignment) override {
        begin();
        align(alignment);
        behind_paragraph_ = true;
    }
    void document_end(rtf::Alignment alignment) override {
        if (!behind_paragraph_) align(alignment);
    }

private:
    void begin() {
        if (behind_paragraph_) cursor_.insertBlock(QTextBlockFormat(), format_);
        behind_paragraph_ = false;
    }

    void align(rtf::Alignment alignment) {
        if (alignment == rtf::Alignment::left) return;
        QTextBlockFormat format;
        format.setAlignment(alignment == rtf::Alignment::right    ? Qt::AlignRight
                            : alignment == rtf::Alignment::center ? Qt::AlignHCenter
                                                                  : Qt::AlignJustify);
        cursor_.mergeBlockFormat(format);
    }

    static QTextCharFormat format_of(const rtf::Style& style, const rtf::Tables& tables) {
        QTextCharFormat format;
        if (const QString name = tables.font_name(style.font).trimmed(); !name.isEmpty())
            format.setFontFamilies({name});
        if (style.half_points > 0) format.setFontPointSize(style.half_points / 2.0);
        if (const auto color = tables.color(style.color)) format.setForeground(QColor(*color));
        if (const auto color = tables.color(style.background); style.background > 0 && color)
            format.setBackground(QColor(*color));
        if (style.bold) format.setFontWeight(QFont::Bold);
        if (style.italic) format.setFontItalic(true);
        if (style.underline) format.setFontUnderline(true);
        if (style.strike) format.setFontStrikeOut(true);
        if (style.script == rtf::Script::above) format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
        if (style.script == rtf::Script::below) format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
        return format;
    }

    QTextCursor cursor_;
    rtf::Style style_;
    QTextCharFormat format_;
    bool behind_paragraph_ = false;
};

}  // namespace

QString plain(const QString& value) {
    if (!is_rtf(value)) return with_line_feeds(value);
    PlainSink sink;
    rtf::Reader(value, sink).read();
    return sink.text();
}

void load(const QString& value, QTextDocument& document) {
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    document.clear();
    if (is_rtf(value)) {
        DocumentSink sink(document);
        rtf::Reader(value, sink).read();
    } else {
        document.setPlainText(value);
    }
    document.setUndoRedoEnabled(undo);
    document.setModified(false);
}

void load(const QString& value, QTextEdit& box) {
    load(value, *box.document());
    // A new cursor forgets the format that was chosen for the next letter, too.
    box.setTextCursor(QTextCursor(box.document()));
}

}  // namespace rich_text
