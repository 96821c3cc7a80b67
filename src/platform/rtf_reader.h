// Reads the RTF of any word processor as runs of text and ends of paragraphs.
#pragma once

#include <QRgb>
#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace rtf {

enum class Action : unsigned char;

enum class Script : std::uint8_t { normal, above, below };

// How a run of text looks. Unset (font -1, size 0, colour 0) means as the document has it.
struct Style {
    int font = -1;
    int half_points = 0;
    int color = 0;
    int background = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    Script script = Script::normal;
    bool operator==(const Style&) const = default;
};

enum class Alignment : std::uint8_t { left, right, center, justify };

class Reader;

// Gets the text in its order. A run holds no paragraph ends; QChar::LineSeparator breaks a line.
class Sink {
public:
    virtual ~Sink() = default;
    virtual void run(const QString& text, const Style& style, const Reader& reader) = 0;
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

    // For a sink: what the tables say so far.
    QString font_name(int font) const;  // empty where there is none
    std::optional<QRgb> color(int index) const;

private:
    enum class Destination : std::uint8_t { body, fonts, colors };
    struct Group {
        Style style;
        int fallback_length = 1;  // characters that stand for a \u in older readers
        Alignment alignment = Alignment::left;
        Destination destination = Destination::body;
        bool hidden = false;
    };
    struct Font {
        int charset = 0;
        QString name;
    };
    struct Word {
        std::string_view name;
        int number = 0;
        bool has_number = false;
        bool on() const { return !has_number || number != 0; }
    };

    void control();
    void control_symbol(char16_t symbol);
    void control_word();
    void apply(const Word& word);
    bool apply_style(Action action, const Word& word);
    void apply_table(Action action, const Word& word);
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
    void table_letter(QChar letter);
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

    std::map<int, Font> fonts_;
    int table_font_ = -1;
    int default_font_ = -1;
    std::vector<std::optional<QRgb>> colors_;
    std::optional<QRgb> table_color_;
    int code_page_ = 1254;
    const QChar* letters_;  // the 256 letters of the current font
    bool ended_ = false;
};

}  // namespace rtf
