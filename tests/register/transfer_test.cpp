#include "forms/record_fields.h"
#include "operation_tests.h"
#include "platform/rich_text.h"
#include "record_desk.h"
#include "register/record_controls.h"

#include <QTest>

#include <map>

using namespace Qt::StringLiterals;

namespace {

const QString source_file = u"c:\\okul\\data\\2025ogr.mdb"_s;

// A value that its control can show and an empty form does not.
store::Value sample(const RecordField& field) {
    switch (field.kind) {
        case FieldKind::text:
            return QString::fromLatin1(field.field) + u" x"_s;
        case FieldKind::rich_text:
            return rich_text::from_plain(QString::fromLatin1(field.field) + u" x"_s);
        case FieldKind::number:
            return 23.75;
        case FieldKind::date:
            return "20080229";
        case FieldKind::position:
            return 1;
        case FieldKind::position_text:
            return "1";
        case FieldKind::check:
            return 1;
        case FieldKind::check_text:
            return "1";
        case FieldKind::exception:
        case FieldKind::untouched:
            break;
    }
    return {};
}

// Student 77 of the term before.
void add_source(const QString& class_group = u"12A"_s) {
    Fields fields;
    for (const RecordField& field : record_fields()) fields.emplace_back(field.field, sample(field));
    for (const auto& [name, value] : Fields{{"ONO", 77},
                                            {"SINIF", class_group},
                                            {"GELOKUL", "ATATÜRK LİSESİ"},
                                            {"OZELKOD", "B1"},
                                            {"USER", "ALİ"},
                                            {"KTUTAR", 5000},
                                            {"ISKONTO", 10},
                                            {"TEL", "5321234567"},
                                            {"AGSMTEL", " "},
                                            {"BGSMTEL", " "},
                                            {"VGSM", " "}})
        fields.emplace_back(name, value);
    RecordDesk::add(source_file, "Ogrenci", fields);
}

void take_over(KurvoYeni& form, const QString& source, const QString& target) {
    RecordDesk::press(form.CommandAL);
    RecordDesk::fill(form.FONO, source);
    RecordDesk::fill(form.YONO, target);
    RecordDesk::press(form.CommandAKTAR);
}

const Row ayse{{"ONO", 1250}, {"ADSOY", "AYŞE"}, {"KAYTAR", "20260905"}, {"AYTAR", "20000101"}};

}  // namespace

void TransferTest::row_of_another_term_comes_to_the_form() {
    RecordDesk desk({ayse});
    add_source();
    KurvoYeni& form = desk.open();
    std::map<QString, QString> empty;
    for (const RecordField& field : record_fields()) empty[field.field] = record_controls::content(form, field);
    take_over(form, u"77"_s, u"1300"_s);
    QVERIFY(!form.Frame1->isVisible() && form.ADSOY->hasFocus() && form.ONO->isEnabled());
    QCOMPARE(form.ONO->text(), u"1300"_s);

    const QStringList stays_behind{u"SINIF"_s,     u"AYTAR"_s,    u"KAYTAR"_s, u"KTUTAR"_s, u"ISKONTO"_s,
                                   u"VYAKINLIK"_s, u"REFERANS"_s, u"SAKLA"_s,  u"DTABLO"_s, u"USER"_s};
    for (const QString& name : stays_behind) {
        const RecordField& field = record_field(name.toLatin1().constData());
        QCOMPARE(record_controls::content(form, field), empty[name]);
    }
    QCOMPARE(form.AYYER->text(), u" "_s);
    QVERIFY(!form.SAKLA->isChecked());
    QCOMPARE(form.KAYTAR->key() + form.AYTAR->key(), u"2026112420000101"_s);
    for (const RecordField& field : record_fields()) {
        const QString name = QString::fromLatin1(field.field);
        if (field.kind != FieldKind::text && field.kind != FieldKind::rich_text) continue;
        if (stays_behind.contains(name) || name == u"AYYER" || name.endsWith(u"TEL") || name == u"VGSM") continue;
        QCOMPARE(record_controls::content(form, field), name + u" x"_s);
    }
    QCOMPARE(form.TEL->text() + form.GELOKUL->currentText() + form.OZKOD->currentText(),
             u"5321234567ATATÜRK LİSESİB1"_s);
    QCOMPARE(form.OO_7->text() + u' ' + form.SERVISNO->text(), u"23.75 23.75"_s);
    QCOMPARE(form.BOLUM->currentText() + form.VERNEDEN->currentText(), u"SözelKayıt"_s);
    QVERIFY(form.AYRI->isChecked() && form.SAVBEL->isChecked());
    QCOMPARE(form.DOGTAR->key(), u"20080229"_s);

    // Nothing is written before the clerk saves.
    RecordDesk::press(form.CommandTEMIZLE);
    QCOMPARE(desk.session.studentTable.RecordCount(), 1);
}

// Begun on a loaded student, whose row must not be overwritten.
void TransferTest::copy_is_saved_as_a_new_student() {
    RecordDesk desk({ayse});
    add_source();
    KurvoYeni& form = desk.open(u"1250"_s);
    take_over(form, u"77"_s, u"1300"_s);
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(1250, "ADSOY"), u"AYŞE"_s);
    QCOMPARE(RecordDesk::field(1300, "ADSOY"), u"ADSOY x"_s);
    QCOMPARE(RecordDesk::field(1300, "KTUTAR") + RecordDesk::field(1300, "USER"), u"0OYA"_s);
}

void TransferTest::numbers_are_looked_up() {
    RecordDesk desk({ayse, {{"ONO", 1251}, {"ADSOY", "ALİ"}}});
    add_source();
    KurvoYeni& form = desk.open(u"1250"_s);
    RecordDesk::press(form.CommandAL);
    QCOMPARE(form.SBC->currentText() + form.FDONEM->text(), u"20252026"_s);
    RecordDesk::fill(form.FONO, u"78"_s);
    QTest::keyClick(form.FONO, Qt::Key_Tab);
    QCOMPARE(form.YFADSOY->text(), u"Bu öğrenci bulunamadı."_s);
    QVERIFY(form.FONO->hasFocus());
    RecordDesk::fill(form.FONO, u"77"_s);
    QTest::keyClick(form.FONO, Qt::Key_Tab);
    QCOMPARE(form.YFADSOY->text(), u"ADSOY x"_s);
    RecordDesk::fill(form.YONO, u"1251"_s);
    QTest::keyClick(form.YONO, Qt::Key_Tab);
    QCOMPARE(form.YADSOY->text(), u"Bu öğrenci numarası kayıtlı."_s);
    QVERIFY(form.YONO->hasFocus());
    QCOMPARE(desk.session.studentTable["ONO"].whole_number(), 1250);

    RecordDesk::press(form.CommandAKTAR);
    QVERIFY(!form.Frame1->isVisible());
    QCOMPARE(form.ONO->text() + form.ADSOY->text(), u"1250AYŞE"_s);
    QCOMPARE(desk.session.studentTable["ONO"].whole_number(), 1250);
    // The texts of the last time are gone.
    RecordDesk::press(form.CommandAL);
    QCOMPARE(form.YFADSOY->text() + form.YADSOY->text(), QString());
    RecordDesk::fill(form.YONO, u"1300"_s);
    QTest::keyClick(form.YONO, Qt::Key_Tab);
    QCOMPARE(form.YADSOY->text(), QString());
}

void TransferTest::without_numbers_data() {
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("name");
    QTest::newRow("no target clears") << "77"
                                      << ""
                                      << "";
    QTest::newRow("no source leaves") << ""
                                      << "1300"
                                      << "AYŞE";
    QTest::newRow("source not on file leaves") << "78"
                                               << "1300"
                                               << "AYŞE";
}

void TransferTest::without_numbers() {
    QFETCH(const QString, source);
    QFETCH(const QString, target);
    RecordDesk desk({ayse});
    add_source();
    KurvoYeni& form = desk.open(u"1250"_s);
    take_over(form, source, target);
    QVERIFY(!form.Frame1->isVisible());
    QTEST(form.ADSOY->text(), "name");
    // Whatever is on the form now, a save leaves the student as it was.
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(1250, "ADSOY"), u"AYŞE"_s);
    QCOMPARE(desk.session.studentTable.RecordCount(), 1);

    form.SBC->clear();
    RecordDesk::press(form.CommandAL);
    QVERIFY(!form.Frame1->isVisible());
}

void TransferTest::class_group_by_whole_entry_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("code alone") << "12A"
                                << " ";
    QTest::newRow("whole entry") << "12A   Sayısal grubu"
                                 << "12A   Sayısal grubu";
}

void TransferTest::class_group_by_whole_entry() {
    QFETCH(const QString, stored);
    RecordDesk desk;
    add_source(stored);
    KurvoYeni& form = desk.open();
    take_over(form, u"77"_s, u"1300"_s);
    QTEST(form.SNF->currentText(), "shown");
}
