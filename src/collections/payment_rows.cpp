#include "collections/payment_rows.h"

namespace {

const QString blank = QStringLiteral(" ");

}  // namespace

PaymentRows::PaymentRows(store::Database& term)
    : term_(term), tahsilat_(term.OpenRecordset("Tahsilat")), odeme_(term.OpenRecordset("Odeme")) {
    tahsilat_.Index("OVTX");
    odeme_.Index("OVX");
}

void PaymentRows::add(const Payment& payment) {
    const auto taken = [&](const QString& saat) {
        tahsilat_.Seek("=", {payment.ono, payment.vade, payment.tarih, saat});
        return !tahsilat_.NoMatch();
    };
    write_at_free_time(term_, taken, [&](const QString& saat) {
        add_tahsilat(payment, saat);
        raise_odeme(payment);
    });
}

void PaymentRows::add_tahsilat(const Payment& payment, const QString& saat) {
    const bool documented = !payment.document.trimmed().isEmpty();
    // A number without a receipt counts as an invoice number.
    const bool invoiced = documented && !payment.is_receipt;
    tahsilat_.AddNew();
    tahsilat_["ONO"] = payment.ono;
    tahsilat_["VADE"] = payment.vade;
    tahsilat_["TARIH"] = payment.tarih;
    tahsilat_["SAAT"] = saat;
    tahsilat_["ODENEN"] = payment.odenen.number();
    tahsilat_["KSAAT"] = payment.ksaat;
    tahsilat_["KASAFNO"] = payment.kasafno;
    tahsilat_["BTIP"] = invoiced ? QStringLiteral("F") : documented ? QStringLiteral("M") : blank;
    tahsilat_["BNO"] = documented ? payment.document : blank;
    tahsilat_["FTAR"] = invoiced ? payment.tarih : blank;
    tahsilat_["FNO"] = invoiced ? payment.document : blank;
    tahsilat_.Update();
}

void PaymentRows::raise_odeme(const Payment& payment) {
    odeme_.Seek("=", {payment.ono, payment.vade});
    if (odeme_.NoMatch()) return;
    odeme_.Edit();
    const Money paid = Money::from_number(odeme_["ODENEN"].required().number());
    odeme_["ODENEN"] = (paid + payment.odenen).number();
    odeme_.Update();
}
