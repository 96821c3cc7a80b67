#include "fees/payment_forms.h"

const QStringList& payment_forms() {
    static const QStringList forms{QStringLiteral("Senet"),          QStringLiteral("Çek"),
                                   QStringLiteral("Nakit"),          QStringLiteral("Kredi Kartı"),
                                   QStringLiteral("Şüpheli Alacak"), QStringLiteral("Takipte"),
                                   QStringLiteral("İptal")};
    return forms;
}

QString payment_form(const store::Value& odsek) {
    return odsek.is_null() ? QString() : payment_forms().value(odsek.whole_number());
}
