#include "session/parameter_files.h"

#include "platform/paths.h"
#include "platform/text_file.h"

#include <QRegularExpression>

#include <stdexcept>

namespace {

const QString tak_file = QStringLiteral("c:\\qlm\\tak.txt");
const QString printer_label = QStringLiteral("Yazıcı tipi");
constexpr int prmt_items = 14;
constexpr int printer_items = 5;
constexpr int layout_group = 4;

[[noreturn]] void refuse(const QString& file, const QString& why) {
    throw std::runtime_error(QStringLiteral("%1 hatalı: %2").arg(file, why).toStdString());
}

// The items of a file that is read by position.
class Items {
public:
    explicit Items(QString file) : file_(std::move(file)), items_(text_file::read_items(file_)) {}

    // The item of this number, counted from 1. `what` names it where the file ends before.
    const QString& at(int number, const QString& what) const {
        if (number > items_.size())
            refuse(
                file_,
                QStringLiteral("%1. değer (%2) eksik; dosyada %3 değer var.").arg(number).arg(what).arg(items_.size()));
        return items_[number - 1];
    }

    // Likewise, where a number must stand; an empty place counts as 0.
    QString number_at(int number, const QString& what) const {
        static const QRegularExpression form(QStringLiteral("^[+-]?[0-9]+(\\.[0-9]+)?$"));
        const QString text = at(number, what).trimmed();
        if (text.isEmpty()) return QStringLiteral("0");
        if (!form.match(text).hasMatch())
            refuse(file_, QStringLiteral("%1. değer (%2) sayı olmalı, \"%3\" yazılmış.").arg(number).arg(what, text));
        return text;
    }

    int switch_at(int number, const QString& what) const {
        const double value = number_at(number, what).toDouble();
        if (value != 0 && value != 1)
            refuse(file_, QStringLiteral("%1. değer (%2) 0 ya da 1 olmalı.").arg(number).arg(what));
        return static_cast<int>(value);
    }

    // Without the empty lines that an editor leaves at the end.
    int size() const {
        qsizetype size = items_.size();
        while (size > 0 && items_[size - 1].isEmpty()) --size;
        return static_cast<int>(size);
    }
    const QString& file() const { return file_; }

private:
    QString file_;
    QStringList items_;
};

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

void read_layout(const Items& items, int first, PrintSettings& print) {
    print.layoutCount = 0;
    for (int number = first; number <= items.size(); number += layout_group) {
        if (print.layoutCount == PrintSettings::layout_room)
            refuse(items.file(), QStringLiteral("%1. değerden sonrası fazla; en çok %2 yerleşim alanı olabilir.")
                                     .arg(number - 1)
                                     .arg(PrintSettings::layout_room));
        const auto i = static_cast<std::size_t>(print.layoutCount++);
        // The invoice takes the field's code from the caption's second character on.
        print.flbl[i] = u' ' + items.at(number, QStringLiteral("alan"));
        print.yy[i] = items.at(number + 1, QStringLiteral("alanın satırı"));
        print.xx[i] = items.at(number + 2, QStringLiteral("alanın sütunu"));
        print.aa[i] = items.at(number + 3, QStringLiteral("alanın ikinci sütunu"));
    }
}

}  // namespace

namespace parameter_files {

void read_prmt(SessionContext& session) {
    const QString file = session.data_file(QStringLiteral("Prmt.txt"));
    if (!paths::exists(file)) create_prmt(file);
    const Items items(file);
    session.noteOffsetX = items.at(2, QStringLiteral("Senet Yatay"));
    session.noteOffsetY = items.at(4, QStringLiteral("Senet Dikey"));
    session.noteHeight = items.at(6, QStringLiteral("Senet Yükseklik"));
    session.lineThickness = items.at(prmt_items, QStringLiteral("Çizgi Kalınlığı"));
}

QStringList read_kasa_tip(const SessionContext& session) {
    const QString file = session.data_file(QStringLiteral("KasaTip.txt"));
    if (!paths::exists(file)) return {QStringLiteral(" ")};
    const QStringList types = text_file::read_lines(file);
    if (types.isEmpty()) refuse(file, QStringLiteral("1. satır yok; en az bir kasa tipi yazılmalıdır."));
    return types;
}

void read_fatura(SessionContext& session) {
    const QString file = session.data_file(QStringLiteral("Fatura.txt"));
    if (!paths::exists(file)) create_fatura(file, session.print);
    const Items items(file);
    PrintSettings& print = session.print;
    print.OptPrn = items.switch_at(2, printer_label);
    print.KSAY = items.number_at(3, QStringLiteral("fatura sayısı"));
    print.KDVc = items.switch_at(4, QStringLiteral("KDV"));
    print.KDVZ = items.number_at(5, QStringLiteral("KDV oranı"));
    for (int i = 0; i < PrintSettings::letters; ++i) {
        const auto letter = static_cast<std::size_t>(i);
        print.krk[letter] = items.at(printer_items + 1 + i, print.fkrk[letter] + QStringLiteral(" harfinin kodu"));
    }
    read_layout(items, printer_items + PrintSettings::letters + 1, print);
}

void read_tak(SessionContext& session) {
    QString flags = QStringLiteral("11");
    if (paths::exists(tak_file)) flags = Items(tak_file).at(1, QStringLiteral("ekran durumu"));
    if (flags.size() < 2) flags += u'1';
    session.uiFlags = flags;
}

}  // namespace parameter_files

void bayrak_yaz(const SessionContext& session) {
    text_file::write_lines(tak_file, {text_file::quoted(session.uiFlags)});
}
