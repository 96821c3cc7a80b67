// Reads the RTF of any word processor as runs of text and ends of paragraphs.
#pragma once

#include "platform/rtf_style.h"
#include "platform/rtf_tables.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace rtf {

enum class Alignment : std::uint8_t { left, right, center, justify };

// Gets the text in its order. A run holds no paragraph ends; QChar::LineSeparator breaks a line.
class Sink {
public:
    virtual ~Sink() = default;
    virtual void run(const QString& text, const Style& style, const Tables& tables) = 0;
    virtual void paragraph_end(Alignment alignment) = 0;
    // The input is at its end, inside a paragraph of this alignment or right behind one.
    virtual void document_end(Alignment alignment) = 0;
};

// The input is read once, front to back, in time and memory proportional to it, however broken it is: groups nest on
// a stack of our own, unknown words and destinations are skipped, the end of the input closes all groups.
class Reader {
public:
    Reader(QStringView input, Sink& sink);
    void read();

private:
    enum class Destination : std::uint8_t { body, fonts, colors };
    struct Group {
        Style style;
        int fallback_length = 1;  // characters that stand for a \u in older readers
        Alignment alignment = Alignment::left;
        Destination destination = Destination::body;
        bool hidden = false;
    };

    void control();
    void control_symbol(char16_t symbol);
    void control_word();
    void apply(const Word& word);
    bool apply_to_run(Action action, const Word& word);
    void apply_to_tables(Action action, const Word& word);
    void select_font(int font);
    void hex_letter();
    void unicode_letter(int number);
    void open_group();
    void close_group();
    void skip_group();
    void skip_optional_group();
    void skip_binary(int size);
    void literal_run();
    void letter(QChar letter);
    void append(QStringView letters);
    void end_paragraph();
    void flush();
    void select_letters();

    QStringView input_;
    qsizetype at_ = 0;
    Sink& sink_;
    std::vector<Group> groups_;
    Group now_;
    qsizetype skipped_depth_ = 0;
    int fallback_left_ = 0;

    QString run_;
    Style run_style_;

    Tables tables_;
    int default_font_ = -1;
    const QChar* letters_;  // the 256 letters of the current font
    bool ended_ = false;
};

}  // namespace rtf
