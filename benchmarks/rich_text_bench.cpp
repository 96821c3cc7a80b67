// A long note read from its RTF, beside the same note read by Qt from HTML.
#include "benches.h"
#include "platform/rich_text.h"

#include <QTextDocument>

#include <stdexcept>

namespace bench {

namespace {

constexpr qsizetype size_of_note = 1'000'000;  // bytes of RTF, which is ASCII

// Entries as clerks write them: a stamp in colour, then text in a few fonts, sizes and styles.
QString entry(int number) {
    const QString fonts[]{QStringLiteral("Arial"), QStringLiteral("Verdana"), QStringLiteral("Times New Roman")};
    return QStringLiteral(
               "<p><b style=\"color:#0000c8\">%1.11.2026 14:05 </b><span style=\"font-family:'%2';"
               "font-size:%3pt\">Velisi ile görüşüldü, öğrencinin çalışma düzeni için <i>ek etüd "
               "önerildi</i>, <u>ödeme gününü</u> hatırlattık. Şubat sonuna kadar izlenecek.</span></p>")
        .arg(number % 28 + 1, 2, 10, QChar(u'0'))
        .arg(fonts[number % 3])
        .arg(8 + number % 4 * 2);
}

struct Note {
    QString rtf, html;
};

Note note_of(qsizetype size) {
    Note note;
    QTextDocument document;
    for (int entries = 500; note.rtf.size() < size; entries += 500) {
        for (int i = 0; i < 500; ++i) note.html += entry(i);
        document.setHtml(note.html);
        note.rtf = rich_text::save(document);
    }
    return note;
}

}  // namespace

void measure_rich_text(Table& table, const BigSchool&) {
    const std::string act = "a note of 1 MB of RTF read";
    if (!table.wants(act)) return;
    const Note note = note_of(size_of_note);
    QTextDocument read, read_by_qt;
    const auto read_rtf = [&] { rich_text::load(note.rtf, read); };
    const auto read_html = [&] { read_by_qt.setHtml(note.html); };
    read_rtf();
    read_html();
    if (read.toPlainText() != read_by_qt.toPlainText()) throw std::runtime_error("the note does not come back whole");
    table.compare(
        act, 3, [&] { return timed(read_rtf); }, [&] { return timed(read_html); });
}

}  // namespace bench
