#include "register/record_lists.h"

#include "fees/payment_forms.h"
#include "platform/attempt.h"
#include "platform/paths.h"
#include "platform/text_file.h"
#include "platform/turkish.h"

#include <algorithm>

namespace record_lists {

namespace {

const QString term_file_ending = QStringLiteral("ogr.mdb");

// Their order is a part of the data: a row holds the position.
void fill_fixed(KurvoYeni& form) {
    const QString blank = QStringLiteral(" ");
    const QString long_blank(30, u' ');
    const std::pair<QComboBox*, QStringList> lists[] = {
        {form.CINSIYET, {long_blank, QStringLiteral("Erkek"), QStringLiteral("Kız")}},
        {form.KANGR, {blank, QStringLiteral("A"), QStringLiteral("AB"), QStringLiteral("B"), QStringLiteral("0")}},
        {form.KANRH, {long_blank, QStringLiteral("Rh +"), QStringLiteral("Rh -")}},
        {form.VERNEDEN, {blank, QStringLiteral("Kayıt"), QStringLiteral("Yenileme")}},
        {form.GRUP,
         {blank, QStringLiteral("Hİ-Sabah"), QStringLiteral("HS-Sabah"), QStringLiteral("Hİ-Öğle"),
          QStringLiteral("HS-Öğle")}},
        {form.BOLUM,
         {blank, QStringLiteral("Sözel"), QStringLiteral("Sayısal"), QStringLiteral("Eşit Ağırlık"),
          QStringLiteral("Yabancı Dil"), QStringLiteral("KPSS"), QStringLiteral("DGS"), QStringLiteral("YÖS")}},
        {form.KALSEK, {blank, QStringLiteral("A.L."), QStringLiteral("F.L."), QStringLiteral("M.L.")}},
        {form.DIN,
         {QStringLiteral("1. Sınıf"), QStringLiteral("2. Sınıf"), QStringLiteral("3. Sınıf"),
          QStringLiteral("4. Sınıf"), QStringLiteral("5. Sınıf"), QStringLiteral("6. Sınıf"),
          QStringLiteral("7. Sınıf"), QStringLiteral("8. Sınıf"), QStringLiteral("Lise-1"), QStringLiteral("Lise-2"),
          QStringLiteral("Lise-3"), QStringLiteral("Lise-4"), QStringLiteral("Mezun"), QStringLiteral("-")}},
        {form.DTABLO, {blank}},
        {form.ODSEK, payment_forms()}};
    for (const auto& [list, entries] : lists) list->addItems(entries);
}

void show_nothing(QComboBox& list) {
    list.setCurrentIndex(-1);
    list.clearEditText();
}

void fill_from_file(QComboBox& list, const QString& file) {
    list.clear();
    if (paths::exists(file)) list.addItems(text_file::read_lines(file));
    show_nothing(list);
}

void fill_prices(KurvoYeni& form, store::Database& reference) {
    store::Recordset prices = reference.OpenRecordset("Fiyat");
    prices.Index("KODX");
    prices.Seek("=", {"0", "MTS"});
    const std::int64_t most_instalments = prices.NoMatch() ? 0 : prices["DEGER"].whole_number();
    for (std::int64_t count = 1; count <= most_instalments; ++count) form.OADET->addItem(QString::number(count));
    for (prices.Seek(">", {"2", ""}); !prices.NoMatch() && !prices.Eof(); prices.MoveNext())
        form.ISKONTO->addItem(prices["DEGER"].text() + u' ' + prices["TANIM"].text());
    show_nothing(*form.OADET);
    show_nothing(*form.ISKONTO);
}

void fill_classes(KurvoYeni& form, store::Database& term) {
    form.SNF->addItem(QStringLiteral(" "));
    store::Recordset classes = term.OpenRecordset("Sinif");
    classes.Index("SINIFX");
    for (classes.Seek(">", {""}); !classes.NoMatch() && !classes.Eof(); classes.MoveNext())
        form.SNF->addItem(classes["SINIF"].text() + QStringLiteral("   ") + classes["ACK"].text());
}

void fill_terms(KurvoYeni& form, const SessionContext& session) {
    form.FDONEM->setText(session.termCode);
    for (const QString& name : paths::files_in(session.data_file({}), term_file_ending))
        form.SBC->addItem(name.chopped(term_file_ending.size()));
}

}  // namespace

QString schools_file(const SessionContext& session) {
    return session.data_file(QStringLiteral("okullar.txt"));
}

QString special_codes_file(const SessionContext& session) {
    return session.data_file(QStringLiteral("OzelKod.txt"));
}

void fill(KurvoYeni& form, SessionContext& session) {
    fill_terms(form, session);
    fill_fixed(form);
    fill_from_file(*form.GELOKUL, schools_file(session));
    fill_from_file(*form.OZKOD, special_codes_file(session));
    fill_classes(form, session.termDb);
    store::Database reference = store::OpenDatabase(session.reference_file());
    fill_prices(form, reference);
    form.CommandSERVISBUL->setEnabled(reference.OpenRecordset("Servis").has_rows());
}

void learn(QComboBox& list, const QString& file, const QString& value) {
    if (value == u" " || list.findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0) return;
    QStringList entries{value};
    for (int place = 0; place < list.count(); ++place) entries.append(list.itemText(place));
    std::ranges::sort(entries, turkish::before_by_code);
    // The row stands by now, so a list that cannot be written is no reason to end the program.
    if (!attempt(QStringLiteral("Öğrenci kaydedildi, fakat yeni giriş listeye eklenemedi."),
                 [&] { text_file::write_lines(file, entries); }))
        return;
    const QString shown = list.currentText();
    list.clear();
    list.addItems(entries);
    list.setCurrentIndex(-1);
    list.setEditText(shown);
}

}  // namespace record_lists
