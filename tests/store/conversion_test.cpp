#include "office.h"
#include "support/run_all.h"

#include <cmath>

Q_DECLARE_METATYPE(store::Value)

using store::Value;

namespace {

// A student's row holds a number, a text and a whole field.
Value stored(const char* field, const Value& value) {
    const Office office;
    auto database = store::OpenDatabase(office.file);
    auto ogrenci = database.OpenRecordset("Ogrenci");
    add(ogrenci, {{field, value}});
    ogrenci.MoveFirst();
    return ogrenci[field].value();
}

}  // namespace

class ConversionTest : public QObject {
    Q_OBJECT

private slots:
    void assignment_converts_data() {
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<Value>("assigned");
        QTest::addColumn<Value>("stored");

        const auto row = [](const char* name, const char* field, const Value& assigned, const Value& expected) {
            QTest::newRow(name) << QByteArray(field) << assigned << expected;
        };
        row("text to number", "ORT9", "12.75", 12.75);
        row("text with sign and blanks", "ORT9", " -3 ", -3.0);
        row("whole to number", "ORT9", 1250, 1250.0);
        row("number to text", "TEL", 12.5, "12.5");
        row("whole number to text", "TEL", 1250.0, "1250");
        row("whole to text", "TEL", 5321234567, "5321234567");
        row("text to whole", "SAKLA", "1", 1);
        row("number to whole", "SAKLA", 2.6, 3);
        row("half to the even one", "SAKLA", 2.5, 2);
        row("more than 16 bits", "SAKLA", 70000, 70000);
        row("largest", "SAKLA", "9223372036854775807", std::int64_t{9223372036854775807});
        row("Turkish letters", "ADSOY", "ŞÜKRÜ ığdır €", "ŞÜKRÜ ığdır €");
        row("empty text", "ADSOY", "", "");
        row("null number", "ORT9", Value(), Value());
        row("null text", "ADSOY", Value(), Value());
    }

    void assignment_converts() {
        QFETCH(QByteArray, field);
        QFETCH(Value, assigned);
        QFETCH(Value, stored);
        QCOMPARE(::stored(field.constData(), assigned), stored);
    }

    void assignment_is_refused_data() {
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<Value>("assigned");

        QTest::newRow("word") << QByteArray("ORT9") << Value("abc");
        QTest::newRow("number and more") << QByteArray("ORT9") << Value("12 TL");
        QTest::newRow("comma") << QByteArray("ORT9") << Value("12,5");
        QTest::newRow("empty") << QByteArray("SAKLA") << Value("");
        QTest::newRow("blank") << QByteArray("ORT9") << Value(" ");
        QTest::newRow("too large") << QByteArray("SAKLA") << Value(1e19);
        QTest::newRow("too large text") << QByteArray("SAKLA") << Value("9223372036854775808");
        QTest::newRow("no number") << QByteArray("ORT9") << Value(std::nan(""));
    }

    void assignment_is_refused() {
        QFETCH(QByteArray, field);
        QFETCH(Value, assigned);
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto ogrenci = database.OpenRecordset("Ogrenci");
        ogrenci.AddNew();
        ogrenci["ONO"] = 1;
        const QString said = refusal([&] { ogrenci[field.constData()] = assigned; });
        QVERIFY2(said.contains("Ogrenci") && said.contains(field), qPrintable(said));
        ogrenci.Update();  // the rest of the edit stands
        ogrenci.Seek("=", {1});
        QVERIFY(ogrenci[field.constData()].value().is_null());
    }

    void null_is_a_value_of_its_own() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto ogrenci = database.OpenRecordset("Ogrenci");
        add(ogrenci, {{"ONO", 5}});
        ogrenci.MoveFirst();
        QCOMPARE(ogrenci["ADSOY"].text(), "");
        QCOMPARE(ogrenci["ORT9"].number(), 0.0);
        QVERIFY(ogrenci["ADSOY"].value().is_null());
        QVERIFY(refusal([&] { ogrenci["ADSOY"].required(); }).contains("ADSOY"));
        QCOMPARE(ogrenci["ONO"].required().whole_number(), 5);
    }

    void value_reads_data() {
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        QTest::addColumn<qint64>("whole");

        QTest::newRow("null") << Value() << "" << 0.0 << qint64{0};
        QTest::newRow("prefix") << Value("12,5 TL") << "12,5 TL" << 12.0 << qint64{12};
        QTest::newRow("point") << Value("1.250") << "1.250" << 1.25 << qint64{1};
        QTest::newRow("negative") << Value(-2.75) << "-2.75" << -2.75 << qint64{-2};
        QTest::newRow("million") << Value(1e6) << "1000000" << 1e6 << qint64{1000000};
        QTest::newRow("beyond 64 bits") << Value(-1e30) << "-1000000000000000019884624838656" << -1e30
                                        << std::numeric_limits<qint64>::min();
    }

    void value_reads() {
        QFETCH(Value, value);
        QTEST(value.text(), "text");
        QTEST(value.number(), "number");
        QTEST(qint64{value.whole_number()}, "whole");
    }
};

static const Registered<ConversionTest> registered;
#include "conversion_test.moc"
