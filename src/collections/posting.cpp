#include "collections/posting.h"

#include "collections/collection_screen.h"
#include "collections/grids.h"
#include "collections/payment_rows.h"
#include "collections/receipt.h"
#include "collections/statement.h"
#include "platform/attempt.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/refusal.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "session/blank_text.h"

Posting::Posting(Kurvo& kurvo, SessionContext& session, Statement& statement, CollectionScreen& screen,
                 CollectionPapers papers)
    : kurvo_(kurvo), session_(session), statement_(statement), screen_(screen), papers_(std::move(papers)) {
    on(kurvo_.CommandOK, &QPushButton::clicked, this, [this] { CommandOK_Click(); });
}

void Posting::CommandOK_Click() {
    if (!session_.card_is_of(kurvo_.LONO->text())) return;
    if (numbers::whole(kurvo_.ODENEN->text()) <= Money()) return;
    const WaitCursor wait;
    store_collection();
    last_posting_ = numbers::whole(kurvo_.ODENEN->text());
    statement_.odeme_durumu();
    print_document();
    kurvo_.FTahsil_TABLO4->set_rows(0);
    screen_.CommandGERI_Click();
}

void Posting::store_collection() {
    if (kurvo_.KFISNO->text().trimmed().isEmpty()) kurvo_.KFISNO->setText(QStringLiteral(" "));
    store::Database reference = store::OpenDatabase(session_.reference_file());
    move_series(reference);
    if (session_.forceTodayOnPosting == u"1") kurvo_.FTahsil_TARIH->setDate(clock_source::today());
    const QString tarih = kurvo_.FTahsil_TARIH->key();
    const QString ksaat = add_kasa_row(reference, tarih);
    reference.Close();
    try {
        add_payments(tarih, ksaat);
    } catch (const std::runtime_error& failure) {
        // Without a word the clerk would collect once more, and the money would be in the cash book twice.
        const QString saat = ksaat.left(2) + u':' + ksaat.mid(2, 2) + u':' + ksaat.mid(4);
        refuse(QStringLiteral("Kasa kaydı yazıldı (%1 %2), fakat taksitlere tamamı işlenemedi.\n%3")
                   .arg(dates::shown(tarih), saat, QString::fromUtf8(failure.what())));
    }
}

// The number is taken before the rows are written: a failure loses a number and never uses one twice.
void Posting::move_series(store::Database& reference) {
    if (!kurvo_.MOP->isChecked() && !kurvo_.FOP->isChecked()) return;
    const QString series = kurvo_.MOP->isChecked() ? QStringLiteral("M") : QStringLiteral("F");
    store::WriteScope scope(reference);
    store::Recordset belgeno = reference.OpenRecordset("Belgeno");
    belgeno.Index("SERIX");
    belgeno.Seek("=", {series});
    if (belgeno.NoMatch()) {
        belgeno.AddNew();
        belgeno["SERI"] = series;
    } else {
        belgeno.Edit();
    }
    belgeno["SNO"] = numbers::val(kurvo_.FTahsil_BNO->text());
    belgeno.Update();
    scope.commit();
}

// Written whatever KASAODENEN holds; returns the time that names the row.
QString Posting::add_kasa_row(store::Database& reference, const QString& tarih) {
    store::Recordset kasa = reference.OpenRecordset("Kasa");
    kasa.Index("TSX");
    const auto taken = [&](const QString& saat) {
        kasa.Seek("=", {tarih, saat});
        return !kasa.NoMatch();
    };
    return write_at_free_time(reference, taken, [&](const QString& saat) {
        kasa.AddNew();
        kasa["TARIH"] = tarih;
        kasa["SAAT"] = saat;
        kasa["ACK"] = kurvo_.LONO->text() + QStringLiteral("  ") + kurvo_.LADSOYAD->text() + QStringLiteral(" #") +
                      session_.termCode;
        kasa["TUTAR"] = numbers::whole(kurvo_.KASAODENEN->text()).number();
        kasa["AE"] = "+";
        kasa["KOD"] = "1";
        kasa["TIP"] = or_blank(kurvo_.ComboKASATIP->currentText());
        kasa.Update();
    });
}

void Posting::add_payments(const QString& tarih, const QString& ksaat) {
    PaymentRows rows(session_.termDb);
    Payment payment;
    payment.ono = store::Value(kurvo_.LONO->text()).whole_number();
    payment.tarih = tarih;
    payment.ksaat = ksaat;
    payment.kasafno = kurvo_.KFISNO->text();
    payment.document = kurvo_.FTahsil_BNO->text();
    payment.is_receipt = kurvo_.MOP->isChecked();

    const GridView& grid = *kurvo_.FTahsil_TABLO4;
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row) {
        payment.odenen = numbers::whole(grid.text(row, chosen_grid::odenen));
        if (payment.odenen <= Money()) continue;
        payment.vade = dates::key_of_shown(grid.text(row, chosen_grid::vade));
        rows.add(payment);
    }
}

void Posting::print_document() {
    if (kurvo_.MOP->isChecked())
        print(QStringLiteral("makbuz"), [this] { makbuz_yaz(kurvo_, session_, last_posting_); });
    if (kurvo_.FOP->isChecked()) print(QStringLiteral("fatura"), papers_.fatura_yaz);
    if (kurvo_.DOP->isChecked()) print(QStringLiteral("ödeme planı"), papers_.plan_yaz);
}

// The rows are stored: a paper that fails must not end the program, or the clerk would post once more.
void Posting::print(const QString& name, const std::function<void()>& paper) {
    attempt(QStringLiteral("Tahsilat kaydedildi, fakat %1 basılamadı.").arg(name), paper);
}
