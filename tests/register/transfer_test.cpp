#include "desk.h"
#include "forms/record_fields.h"
#include "platform/rich_text.h"
#include "register/record_controls.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

// A value that its control can show and an empty form does not.
store::Value sample(const RecordField& field) {
    const QString text = QString::fromLatin1(field.field) + u" x"_s;
    if (field.kind == FieldKind::text) return text;
    if (field.kind == FieldKind::rich_text) return rich_text::from_plain(text);
    if (field.kind == FieldKind::number) return 23.75;
    if (field.kind == FieldKind::date) return "20080229";
    if (field.kind == FieldKind::position || field.kind == FieldKind::check) return 1;
    if (field.kind == FieldKind::position_text || field.kind == FieldKind::check_text) return "1";
    return {};
}

// Student 77 of the term before.
void add_source(const QString& class_group = u"12A"_s) {
    store::Database term = store::OpenDatabase(u"c:\\okul\\data\\2025ogr.mdb"_s);
    store::Recordset students = term.OpenRecordset("Ogrenci");
    students.AddNew();
    for (const RecordField& field : record_fields()) students[field.field] = sample(field);
    const Row exceptions{{"ONO", 77},       {"SINIF", class_group}, {"GELOKUL", "ATATÜRK LİSESİ"},
                         {"OZELKOD", "B1"}, {"USER", "ALİ"},        {"KTUTAR", 5000},
                         {"ISKONTO", 10},   {"TEL", "5321234567"},  {"AGSMTEL", " "},
                         {"BGSMTEL", " "},  {"VGSM", " "}};
    for (const auto& [name, value] : exceptions) students[name] = value;
    students.Update();
}

void take_over(KurvoYeni& form, const QString& source, const QString& target) {
    Desk::press(form.CommandAL);
    Desk::fill(form.FONO, source);
    Desk::fill(form.YONO, target);
    Desk::press(form.CommandAKTAR);
}

const Row ayse{{"ONO", 1250}, {"ADSOY", "AYŞE"}, {"KAYTAR", "20260905"}, {"AYTAR", "20000101"}};

}  // namespace

class TransferTest : public QObject {
    Q_OBJECT

private slots:
    void row_of_another_term_comes_to_the_form() {
        Desk desk({ayse});
        add_source();
        KurvoYeni& form = desk.open();
        std::map<QString, QString> empty;
        for (const RecordField& field : record_fields()) empty[field.field] = record_controls::content(form, field);
        take_over(form, u"77"_s, u"1300"_s);
        QVERIFY(!form.Frame1->isVisible() && form.ADSOY->hasFocus() && form.ONO->isEnabled());
        QCOMPARE(form.ONO->text(), u"1300"_s);

        const QStringList stays_behind{u"SINIF"_s,     u"AYTAR"_s,    u"KAYTAR"_s, u"KTUTAR"_s, u"ISKONTO"_s,
                                       u"VYAKINLIK"_s, u"REFERANS"_s, u"SAKLA"_s,  u"DTABLO"_s, u"USER"_s};
        for (const RecordField& field : record_fields()) {
            const QString name = QString::fromLatin1(field.field);
            if (stays_behind.contains(name)) QCOMPARE(record_controls::content(form, field), empty[name]);
            if (field.kind != FieldKind::text && field.kind != FieldKind::rich_text) continue;
            if (stays_behind.contains(name) || name == u"AYYER" || name.endsWith(u"TEL") || name == u"VGSM") continue;
            QCOMPARE(record_controls::content(form, field), name + u" x"_s);
        }
        QCOMPARE(form.AYYER->text(), u" "_s);
        QCOMPARE(form.KAYTAR->key() + form.AYTAR->key() + form.DOGTAR->key(), u"202611242000010120080229"_s);
        QCOMPARE(form.TEL->text() + form.GELOKUL->currentText() + form.OZKOD->currentText(),
                 u"5321234567ATATÜRK LİSESİB1"_s);
        QCOMPARE(form.OO_7->text() + u' ' + form.SERVISNO->text(), u"23.75 23.75"_s);
        QCOMPARE(form.BOLUM->currentText() + form.VERNEDEN->currentText(), u"SözelKayıt"_s);
        QVERIFY(form.AYRI->isChecked() && form.SAVBEL->isChecked() && !form.SAKLA->isChecked());
        QCOMPARE(desk.session.studentTable.RecordCount(), 1);  // nothing is written before the clerk saves
    }

    // Begun on a loaded student, whose row must not be overwritten.
    void copy_is_saved_as_a_new_student() {
        Desk desk({ayse});
        add_source(u"12A   Sayısal grubu"_s);
        KurvoYeni& form = desk.open(u"1250"_s);
        take_over(form, u"77"_s, u"1300"_s);
        QCOMPARE(form.SNF->currentText(), u"12A   Sayısal grubu"_s);  // by the whole entry alone
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.field(1250, u"ADSOY"_s) + desk.field(1300, u"ADSOY"_s), u"AYŞEADSOY x"_s);
        QCOMPARE(desk.field(1300, u"KTUTAR"_s) + desk.field(1300, u"USER"_s), u"0OYA"_s);
    }
};

static const Registered<TransferTest> registered;
#include "transfer_test.moc"
