#include "platform/turkish.h"

#include "platform/code_page.h"
#include "support/run_all.h"

#include <algorithm>
#include <random>
#include <tuple>

namespace {

int compare_bytes(const QString& left, const QString& right) {
    const QByteArray a = left.toUtf8();
    const QByteArray b = right.toUtf8();
    return turkish::compare_utf8(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()));
}

}  // namespace

class TurkishTest : public QObject {
    Q_OBJECT

private slots:
    void capitals() {
        QCOMPARE(turkish::capital("Irmak ışık İpek ilik"), "IRMAK IŞIK İPEK İLİK");
        QCOMPARE(turkish::capital("çğöşü ÇĞÖŞÜ 12-Â/Fen"), "ÇĞÖŞÜ ÇĞÖŞÜ 12-Â/FEN");
    }

    void alphabet_in_order() {
        const QString small = "abcçdefgğhıijklmnoöpqrsştuüvwxyz";
        const QString capital = "ABCÇDEFGĞHIİJKLMNOÖPQRSŞTUÜVWXYZ";
        for (qsizetype i = 0; i < small.size(); ++i) {
            QCOMPARE(turkish::compare(small.mid(i, 1), capital.mid(i, 1)), 0);
            if (i == 0) continue;
            QVERIFY(turkish::compare(small.mid(i - 1, 1), capital.mid(i, 1)) < 0);
            QVERIFY(turkish::compare(capital.mid(i - 1, 1) + "zz", small.mid(i, 1)) < 0);
        }
    }

    void order() {
        // The shorter first; signs, digits, letters; foreign letters behind their base and before the Turkish one; all
        // others by their code.
        const std::pair<QString, QString> pairs[]{{"", " "},    {"ALİ", "ali "}, {"~", "0"},   {"A×", "A1"},
                                                  {"9A", "AA"}, {"a", "â"},      {"ÂZ", "BA"}, {"õ", "ö"},
                                                  {"ß", "Ş"},   {"zzz", "Ж"},    {"Ж", "ж"},   {QChar(0xFFFD), "😀"}};
        for (const auto& [smaller, larger] : pairs) {
            QVERIFY2(turkish::compare(smaller, larger) < 0, qPrintable(smaller));
            QVERIFY2(compare_bytes(larger, smaller) > 0, qPrintable(smaller));
        }
    }

    void order_is_total() {
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

        // Sorted, every text must stand right against every other one: only so where the order is transitive.
        std::ranges::sort(texts, [](const QString& a, const QString& b) { return turkish::compare(a, b) < 0; });
        for (std::size_t i = 0; i < texts.size(); ++i)
            for (std::size_t j = i; j < texts.size(); ++j) {
                const int order = turkish::compare(texts[i], texts[j]);
                QVERIFY(order <= 0);
                QCOMPARE(turkish::compare(texts[j], texts[i]), -order);
                QCOMPARE(compare_bytes(texts[i], texts[j]), order);
                const int of_keys = turkish::sort_key(texts[i]).compare(turkish::sort_key(texts[j]));
                QCOMPARE(of_keys < 0 ? -1 : static_cast<int>(of_keys > 0), order);
            }
    }
};

static const Registered<TurkishTest> registered;
#include "turkish_test.moc"
