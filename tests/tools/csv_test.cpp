#include "csv.h"

#include "support/refusal.h"
#include "support/run_all.h"

namespace {

// Fields of all rows for the eye: Null as ∅, rows separated by "|", fields by "/".
QString shown(const std::vector<csv::Row>& rows) {
    QString all;
    for (const csv::Row& row : rows) {
        for (const csv::Field& field : row) all += field.text.value_or("∅") + '/';
        all.back() = '|';
    }
    return all;
}

}  // namespace

class CsvTest : public QObject {
    Q_OBJECT

private slots:
    void reads_fields_as_written() {
        const std::pair<QByteArray, QString> texts[]{
            {"A,B\r\n,\"\"\r\n", "A/B|∅/|"},  // Null and an empty text
            {"A\nx", "A|x|"},
            {" x , \n", " x / |"},
            {"\"a,b\",\"say \"\"ne\"\"\",\"1\r\n2\n3\"\n", "a,b/say \"ne\"/1\r\n2\n3|"},
            {"a,\n,b\n\n", "a/∅|∅/b|∅|"},
            {"\xef\xbb\xbfğüşİıöç\n", "ğüşİıöç|"},
            {"", ""}};
        for (const auto& [text, expected] : texts) QCOMPARE(shown(csv::read(text)), expected);
    }

    void names_the_line_of_what_it_refuses() {
        const std::pair<QByteArray, QString> texts[]{{"A\nx\"y\n", "2. satır"},      {"A\n\"1\n2\"x\n", "3. satır"},
                                                     {"A\nb\n\"c\nd\n", "3. satır"}, {"A\rB\n", "1. satır"},
                                                     {"A\nb\n\xfe\n", "3. satır"},   {"A\n\xc4", "2. satır"}};
        for (const auto& [text, expected] : texts) {
            const QString words = refusal([&] { csv::read(text); });
            QVERIFY2(words.startsWith(expected), qPrintable(words));
        }
    }
};

static const Registered<CsvTest> registered;
#include "csv_test.moc"
