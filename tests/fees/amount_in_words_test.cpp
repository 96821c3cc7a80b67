#include "fees/amount_in_words.h"

#include "fees/payment_forms.h"
#include "fees_tests.h"

#include <QTest>

void AmountInWordsTest::words_data() {
    QTest::addColumn<qint64>("amount");
    QTest::addColumn<QString>("expected");
    const auto row = [](qint64 amount, const char* expected) {
        QTest::newRow(QByteArray::number(amount).constData()) << amount << QString::fromUtf8(expected);
    };
    row(0, "");
    row(7, "Yedi");
    row(10, "On");
    row(64, "AltmışDört");
    row(75, "YetmişBeş");
    row(100, "Yüz");
    row(110, "YüzOn");
    row(233, "İkiyüzOtuzÜç");
    row(386, "ÜçyüzSeksenAltı");
    row(421, "DörtyüzYirmiBir");
    row(537, "BeşyüzOtuzYedi");
    row(642, "AltıyüzKırkİki");
    row(759, "YediyüzElliDokuz");
    row(808, "SekizyüzSekiz");
    row(999, "DokuzyüzDoksanDokuz");
    row(1000, "Bin ");
    row(1001, "Bin Bir");
    row(1250, "Bin İkiyüzElli");
    row(2000, "İkiBin ");
    row(11000, "OnBirBin ");
    row(21000, "YirmiBirBin ");
    row(101000, "YüzBirBin ");
    row(100100, "YüzBin Yüz");
    row(1000000, "BirMilyon ");
    row(1000001, "BirMilyon Bir");
    row(1001000, "BirMilyon Bin ");
    row(1000000000, "BirMilyar ");
    row(123456789012, "YüzYirmiÜçMilyar DörtyüzElliAltıMilyon YediyüzSeksenDokuzBin Onİki");
}

void AmountInWordsTest::words() {
    QFETCH(qint64, amount);
    QTEST(tutar_yaziya(amount), "expected");
}

void AmountInWordsTest::words_of_a_text_data() {
    QTest::addColumn<QString>("digits");
    QTest::addColumn<QString>("expected");
    QTest::newRow("blanks around") << " 1250 "
                                   << "Bin İkiyüzElli";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("13 digits") << "1000000000009"
                               << "YüzMilyar ";
    QTest::newRow("a point is a place") << "139.24"
                                        << "YüzOtuzDokuzBin YirmiDört";
}

void AmountInWordsTest::words_of_a_text() {
    QFETCH(QString, digits);
    QTEST(tutar_yaziya(digits), "expected");
}

void AmountInWordsTest::payment_forms_by_number_data() {
    QTest::addColumn<int>("odsek");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first") << 0 << "Senet";
    QTest::newRow("cancelled") << 6 << "İptal";
    QTest::newRow("behind the last") << 7 << "";
    QTest::newRow("before the first") << -1 << "";
}

void AmountInWordsTest::payment_forms_by_number() {
    QFETCH(int, odsek);
    QTEST(payment_form(odsek), "expected");
    QCOMPARE(payment_form(store::Value()), QString());
}
