#include "fees/note_wording.h"

#include "platform/paths.h"
#include "session/item_file.h"

using namespace Qt::StringLiterals;

namespace note_wording {

namespace {

constexpr std::size_t words = 7;

QString file_of(const SessionContext& session) {
    return session.data_file(u"Senet.txt"_s);
}

std::array<QLineEdit*, words> boxes(const KurvoYeni& form) {
    return {form.sx1, form.sx2, form.sx3, form.sx4, form.sx5, form.sx6, form.sx7};
}

void write(const QString& file, const std::array<QString, words>& texts) {
    QStringList items;
    for (const QString& text : texts) items << text_file::quoted(text);
    text_file::write_lines(file, {items.join(u',')});
}

std::array<QString, words> read(const QString& file) {
    const ItemFile items(file);
    std::array<QString, words> texts;
    int number = 0;
    for (QString& text : texts) {
        ++number;
        text = items.at(number, u"senet metninin %1. sözü"_s.arg(number));
    }
    return texts;
}

void fill_debtor(KurvoYeni& form) {
    form.sADSOY->setText(form.VELI->text());
    form.sADRES1->setText(form.ADRES1->text());
    form.sADRES2->setText(form.ADRES2->text());
    form.sADRES3->setText(form.AILCE->text() + u"  "_s + form.AIL->text());
    form.sVD->setText(form.VTCNO->text());
}

}  // namespace

void fill_panel(KurvoYeni& form, const SessionContext& session) {
    const QString file = file_of(session);
    std::array<QString, words> texts{u""_s, session.schoolName, u""_s, u"m."_s, u""_s, u"BURSA"_s, u"m."_s};
    if (paths::exists(file))
        texts = read(file);
    else
        write(file, texts);
    for (std::size_t i = 0; i < words; ++i) boxes(form)[i]->setText(texts[i]);
    fill_debtor(form);
}

void keep_words(const KurvoYeni& form, const SessionContext& session) {
    std::array<QString, words> texts;
    for (std::size_t i = 0; i < words; ++i) texts[i] = boxes(form)[i]->text();
    write(file_of(session), texts);
}

std::array<QString, 5> lines(const KurvoYeni& form, const QString& date_in_words, const QString& amount_in_words) {
    const auto text = [](auto*... parts) { return (parts->text() + ...); };
    const QString due = date_in_words.isEmpty() ? QString() : date_in_words + form.sb3->text();
    return {text(form.sb1, form.sx1, form.sb2) + due, text(form.sb4, form.sx2, form.sb5, form.sx3),
            form.sb6->text() + amount_in_words + text(form.sb7, form.sb8, form.sb9),
            text(form.sb10, form.sx4, form.sb11, form.sx5, form.sb12), text(form.sb13, form.sx6, form.sb14, form.sx7)};
}

QString date_in_words(const QDate& date) {
    static const std::array months{u" Ocak "_s,  u" Şubat "_s,   u" Mart "_s,   u" Nisan "_s,
                                   u" Mayıs "_s, u" Haziran "_s, u" Temmuz "_s, u" Ağustos "_s,
                                   u" Eylül "_s, u" Ekim "_s,    u" Kasım "_s,  u" Aralık "_s};
    return QString::number(date.day()) + months[static_cast<std::size_t>(date.month() - 1)] +
           QString::number(date.year());
}

}  // namespace note_wording
