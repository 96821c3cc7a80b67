#include "base_tests.h"
#include "platform/code_page.h"
#include "platform/numbers.h"

#include <QTest>

#include <algorithm>
#include <random>

namespace {

int compare_bytes(const QString& left, const QString& right) {
    const QByteArray a = left.toUtf8();
    const QByteArray b = right.toUtf8();
    return turkish::compare_utf8(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()));
}

}  // namespace

void TurkishTest::cases_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");
    QTest::newRow("both letters i") << "Irmak ışık İpek ilik"
                                    << "IRMAK IŞIK İPEK İLİK"
                                    << "ırmak ışık ipek ilik";
    QTest::newRow("all Turkish letters") << "çğöşü ÇĞÖŞÜ"
                                         << "ÇĞÖŞÜ ÇĞÖŞÜ"
                                         << "çğöşü çğöşü";
    QTest::newRow("what has no case") << "12-Â/Fen"
                                      << "12-Â/FEN"
                                      << "12-â/fen";
}

void TurkishTest::cases() {
    QFETCH(QString, text);
    QTEST(turkish::upper(text), "upper");
    QTEST(turkish::capital(text), "upper");
    QTEST(turkish::lower(text), "lower");
}

void TurkishTest::alphabet_in_order() {
    const QString small = "abcçdefgğhıijklmnoöpqrsştuüvwxyz";
    const QString capital = "ABCÇDEFGĞHIİJKLMNOÖPQRSŞTUÜVWXYZ";
    for (qsizetype i = 0; i < small.size(); ++i) {
        QCOMPARE(turkish::compare(small.mid(i, 1), capital.mid(i, 1)), 0);
        if (i == 0) continue;
        QVERIFY(turkish::compare(small.mid(i - 1, 1), capital.mid(i, 1)) < 0);
        QVERIFY(turkish::compare(capital.mid(i - 1, 1) + "zz", small.mid(i, 1)) < 0);
    }
}

void TurkishTest::order_data() {
    QTest::addColumn<QString>("smaller");
    QTest::addColumn<QString>("larger");
    QTest::newRow("nothing first") << ""
                                   << " ";
    QTest::newRow("shorter first") << "ALİ"
                                   << "ali ";
    QTest::newRow("sign before digit") << "~"
                                       << "0";
    QTest::newRow("late sign before digit") << "A×"
                                            << "A1";
    QTest::newRow("digit before letter") << "9A"
                                         << "AA";
    QTest::newRow("foreign letter behind its base") << "a"
                                                    << "â";
    QTest::newRow("and before the next one") << "ÂZ"
                                             << "BA";
    QTest::newRow("foreign before Turkish") << "õ"
                                            << "ö";
    QTest::newRow("sharp s before ş") << "ß"
                                      << "Ş";
    QTest::newRow("outside after all") << "zzz"
                                       << "Ж";
    QTest::newRow("outside by code") << "Ж"
                                     << "ж";
    QTest::newRow("beyond 16 bits last") << QString(QChar(0xFFFD)) << "😀";
}

void TurkishTest::order() {
    QFETCH(QString, smaller);
    QFETCH(QString, larger);
    QVERIFY(turkish::compare(smaller, larger) < 0);
    QVERIFY(turkish::compare(larger, smaller) > 0);
    QVERIFY(compare_bytes(smaller, larger) < 0);
    QVERIFY(compare_bytes(larger, smaller) > 0);
}

void TurkishTest::order_is_total() {
    std::mt19937 random(1254);
    const auto any_letter = [&] {
        const auto pick = random() % 10;
        if (pick == 0) return QString::fromUcs4(U"Жж漢😀ˇﬁ" + random() % 6, 1);
        if (pick < 5) return QString(code_page::letter_of(static_cast<unsigned char>(random() % 256)));
        return QString(QStringLiteral("aAiİıIsŞ")[random() % 8]);
    };
    std::vector<QString> texts(400);
    for (QString& text : texts)
        for (auto length = random() % 4; length > 0; --length) text += any_letter();

    // Sorted, every text must stand right against every other one: this is only so where the order is transitive.
    std::ranges::sort(texts, [](const QString& a, const QString& b) { return turkish::compare(a, b) < 0; });
    for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t j = i; j < texts.size(); ++j) {
            const int order = turkish::compare(texts[i], texts[j]);
            QVERIFY(order <= 0);
            QCOMPARE(turkish::compare(texts[j], texts[i]), -order);
            QCOMPARE(compare_bytes(texts[i], texts[j]), order);
        }
}
