#include "fees/amount_in_words.h"

#include "support/run_all.h"

using namespace Qt::StringLiterals;

class AmountInWordsTest : public QObject {
    Q_OBJECT

private slots:
    void words() {
        const QString told = QStringLiteral(
            "75 YetmişBeş|110 YüzOn|233 İkiyüzOtuzÜç|386 ÜçyüzSeksenAltı|421 DörtyüzYirmiBir|642 AltıyüzKırkİki|"
            "999 DokuzyüzDoksanDokuz|1000 Bin |1001 Bin Bir|2000 İkiBin |21000 YirmiBirBin |"
            "101000 YüzBirBin |100100 YüzBin Yüz|1001000 BirMilyon Bin ");
        for (const QString& row : told.split(u'|'))
            QCOMPARE(tutar_yaziya(row.section(u' ', 0, 0).toLongLong()), row.section(u' ', 1));
        QCOMPARE(tutar_yaziya(qint64(0)), QString());
        QCOMPARE(tutar_yaziya(qint64(123456789012)),
                 u"YüzYirmiÜçMilyar DörtyüzElliAltıMilyon YediyüzSeksenDokuzBin Onİki"_s);
        QCOMPARE(tutar_yaziya(u" 1250 "_s), u"Bin İkiyüzElli"_s);
    }
};

static const Registered<AmountInWordsTest> registered;
#include "amount_in_words_test.moc"
