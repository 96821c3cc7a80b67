#include "sample_money.h"

#include "platform/numbers.h"
#include "rows.h"
#include "sample.h"
#include "support/school.h"

namespace {

sample::Scale small() {
    sample::Scale scale;
    scale.students = 30;
    scale.photos = 0;
    scale.instalments = 10;
    scale.absences = 20;
    return scale;
}

QByteArray whole_term(std::uint64_t seed) {
    const School school;
    sample::fill_reference(rows::root);
    sample::fill_term(rows::root, "2026", seed, small());
    QByteArray text = rows::dump(rows::reference, "Kasa");
    for (const store::TableDef& table : store::catalogue(store::FileKind::term))
        text += rows::dump(rows::term, QString::fromStdString(table.name));
    return text;
}

}  // namespace

class SampleMoneyTest : public QObject {
    Q_OBJECT

private slots:
    void due_dates_follow_the_months() {
        const std::pair<QDate, QString> firsts[]{{{2027, 1, 31}, "20270131 20270228 20270331 20270430 "},
                                                 {{2027, 12, 30}, "20271230 20280130 20280228 20280330 "}};
        for (const auto& [first, expected] : firsts) {
            QString keys;
            for (const QDate& date : sample::due_dates(first, 4)) keys += dates::key(date) + ' ';
            QCOMPARE(keys, expected);
        }
    }

    void same_seed_same_school() {
        const QByteArray first = whole_term(3);
        QVERIFY(first == whole_term(3));
        QVERIFY(first != whole_term(4));
    }

    void two_terms_share_the_cash_book() {
        const School school;
        school.add_term("2027");
        sample::fill_reference(rows::root);
        for (const QString term : {"2026", "2027"}) sample::fill_term(rows::root, term, 1, small());
        // The receipts of the second term go on behind those of the first.
        const auto numbers = [&](const QString& term) {
            QList<int> result;
            for (const rows::Record& payment : rows::all(school.data_file(term + "ogr.mdb"), "Tahsilat"))
                if (payment["BTIP"].text() == "M") result += payment["BNO"].text().toInt();
            std::ranges::sort(result);
            return result;
        };
        QCOMPARE(numbers("2027").first(), numbers("2026").last() + 1);
        QCOMPARE(rows::all(rows::term, "Odeme").size(), 30 * 10);
        QCOMPARE(rows::all(rows::term, "Devam").size(), 30 * 20);
    }
};

static const Registered<SampleMoneyTest> registered;
#include "sample_money_test.moc"
