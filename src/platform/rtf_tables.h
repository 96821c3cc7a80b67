// The tables at the head of an RTF document, as far as they have been read: its fonts and its colours.
#pragma once

#include "platform/rtf_words.h"

#include <QRgb>
#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace rtf {

class Tables {
public:
    QString font_name(int font) const;  // empty where there is none
    std::optional<QRgb> color(int index) const;

    // The 256 letters of a font: those of its character set, or else of the document's code page.
    const QChar* letters_of(int font) const;
    void set_code_page(int number) { code_page_ = number; }

    // In the table of fonts a font's number begins its entry, ";" ends it.
    void begin_font(int font);
    void set_charset(int charset);
    void add_font_letter(QChar letter);

    // In the table of colours the parts come in any order, ";" ends the entry.
    void set_color_part(Action part, int value);
    void add_color_letter(QChar letter);

private:
    struct Font {
        int charset = 0;
        QString name;
    };
    std::map<int, Font> fonts_;
    std::vector<std::optional<QRgb>> colors_;
    int font_ = -1;              // of the entry that is being read; -1 for none
    std::optional<QRgb> color_;  // likewise
    int code_page_ = 1254;
};

}  // namespace rtf
