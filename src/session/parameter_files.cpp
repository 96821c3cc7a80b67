#include "session/parameter_files.h"

#include "platform/paths.h"
#include "platform/text_file.h"
#include "session/item_file.h"

namespace {

const QString tak_file = QStringLiteral("c:\\qlm\\tak.txt");
const QString printer_label = QStringLiteral("Yazıcı tipi");
constexpr int prmt_items = 14;
constexpr int printer_items = 5;
constexpr int layout_group = 4;

constexpr double most_copies = 99;
constexpr double most_percent = 100;
constexpr double last_code = 255;
constexpr double last_place = 999;  // of a line or a column

void create_prmt(const QString& file) {
    const QStringList items{text_file::quoted(QStringLiteral("Senet Yatay")),
                            QStringLiteral("500"),
                            text_file::quoted(QStringLiteral("Senet Dikey")),
                            QStringLiteral("200"),
                            text_file::quoted(QStringLiteral("Senet Yükseklik")),
                            QStringLiteral("4200"),
                            text_file::quoted({}),
                            QStringLiteral("1"),
                            text_file::quoted({}),
                            QStringLiteral("1"),
                            text_file::quoted({}),
                            QStringLiteral("18"),
                            text_file::quoted(QStringLiteral("Çizgi Kalınlığı")),
                            QStringLiteral("1")};
    text_file::write_lines(file, {items.join(u',')});
}

// Without a layout: the installer adds the places of his printed form.
void create_fatura(const QString& file, const PrintSettings& design) {
    QStringList lines{text_file::quoted(printer_label) + QStringLiteral(",0,0,0,0")};
    for (const QString& code : design.krk) lines.append(text_file::quoted(code));
    text_file::write_lines(file, lines);
}

// An empty place stays empty.
QString place_at(const ItemFile& items, int number, const QString& what) {
    items.number_at(number, what, last_place);
    return items.at(number, what);
}

void read_layout(const ItemFile& items, int first, PrintSettings& print) {
    print.layoutCount = 0;
    for (int number = first; number <= items.size(); number += layout_group) {
        if (print.layoutCount == PrintSettings::layout_room)
            items.refuse(items.line_of(number),
                         QStringLiteral("%1. değerden sonrası fazla; en çok %2 yerleşim alanı olabilir.")
                             .arg(number - 1)
                             .arg(PrintSettings::layout_room));
        const auto i = static_cast<std::size_t>(print.layoutCount++);
        print.layoutLine[i] = items.line_of(number);
        // The invoice takes the field's code from the caption's second character on.
        print.flbl[i] = u' ' + items.at(number, QStringLiteral("alan"));
        print.yy[i] = place_at(items, number + 1, QStringLiteral("alanın satırı"));
        print.xx[i] = place_at(items, number + 2, QStringLiteral("alanın sütunu"));
        print.aa[i] = place_at(items, number + 3, QStringLiteral("alanın ikinci sütunu"));
    }
}

}  // namespace

namespace parameter_files {

void read_prmt(SessionContext& session) {
    const QString file = session.data_file(QStringLiteral("Prmt.txt"));
    if (!paths::exists(file)) create_prmt(file);
    const ItemFile items(file);
    session.noteOffsetX = items.at(2, QStringLiteral("Senet Yatay"));
    session.noteOffsetY = items.at(4, QStringLiteral("Senet Dikey"));
    session.noteHeight = items.at(6, QStringLiteral("Senet Yükseklik"));
    session.lineThickness = items.at(prmt_items, QStringLiteral("Çizgi Kalınlığı"));
}

QStringList read_kasa_tip(const SessionContext& session) {
    const QString file = session.data_file(QStringLiteral("KasaTip.txt"));
    if (!paths::exists(file)) return {QStringLiteral(" ")};
    const QStringList types = text_file::read_lines(file);
    if (types.isEmpty()) refuse_line(file, 1, QStringLiteral("en az bir kasa tipi yazılmalıdır."));
    return types;
}

void read_fatura(SessionContext& session) {
    const QString file = session.data_file(QStringLiteral("Fatura.txt"));
    if (!paths::exists(file)) create_fatura(file, session.print);
    const ItemFile items(file);
    PrintSettings& print = session.print;
    print.OptPrn = items.switch_at(2, printer_label);
    print.KSAY = items.number_at(3, QStringLiteral("fatura sayısı"), most_copies);
    print.KDVc = items.switch_at(4, QStringLiteral("KDV"));
    print.KDVZ = items.number_at(5, QStringLiteral("KDV oranı"), most_percent);
    for (int i = 0; i < PrintSettings::letters; ++i) {
        const auto letter = static_cast<std::size_t>(i);
        print.krk[letter] =
            items.number_at(printer_items + 1 + i, print.fkrk[letter] + QStringLiteral(" harfinin kodu"), last_code);
    }
    read_layout(items, printer_items + PrintSettings::letters + 1, print);
}

// How a screen looks is no reason to keep the office from its work, so a file that was emptied is none.
void read_tak(SessionContext& session) {
    const QStringList items = paths::exists(tak_file) ? text_file::read_items(tak_file) : QStringList();
    QString flags = items.value(0, QStringLiteral("11"));
    if (flags.size() < 2) flags += u'1';
    session.uiFlags = flags;
}

}  // namespace parameter_files

void bayrak_yaz(const SessionContext& session) {
    text_file::write_lines(tak_file, {text_file::quoted(session.uiFlags)});
}
