#include "office.h"
#include "support/run_all.h"

namespace {

const store::TableDef& student_table() {
    return store::table_of(store::FileKind::term, "Ogrenci");
}

// Text fields of student i hold "i:FIELD", so that a value of another row or field shows.
QString mark(int student, const std::string& field) {
    return QString::number(student) + ':' + QString::fromStdString(field);
}

std::vector<std::string> text_fields() {
    std::vector<std::string> names;
    for (const auto& field : student_table().fields)
        if (field.type == store::FieldType::text || field.type == store::FieldType::memo) names.push_back(field.name);
    return names;
}

void fill(store::Database& database, int students) {
    auto ogrenci = database.OpenRecordset("Ogrenci");
    store::WriteScope scope(database);
    for (int student = 1; student <= students; ++student) {
        ogrenci.AddNew();
        ogrenci["ONO"] = student;
        for (const std::string& field : text_fields()) ogrenci[field] = mark(student, field);
        ogrenci.Update();
    }
    scope.commit();
}

}  // namespace

class FieldsTest : public QObject {
    Q_OBJECT

private slots:
    void student_table_is_kept_in_its_order() {
        const auto& fields = student_table().fields;
        QCOMPARE(fields.size(), std::size_t{85});
        const auto place_of = [&](std::string_view name) {
            return std::ranges::find(fields, name, &store::FieldDef::name) - fields.begin() + 1;
        };
        QCOMPARE(place_of("ONO"), 1);
        QCOMPARE(place_of("RESIM"), 12);
        QCOMPARE(place_of("AYTAR"), 27);
        QCOMPARE(place_of("ANNE"), 43);
        QCOMPARE(place_of("NOT"), 63);
        QCOMPARE(place_of("KTUTAR"), 71);
        QCOMPARE(place_of("DURAKNO"), 85);
    }

    void definitions_come_back() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        const auto& expected = store::catalogue(store::FileKind::term);
        const auto found = database.tables();
        QCOMPARE(found.size(), expected.size());
        for (std::size_t i = 0; i < found.size(); ++i) {
            QCOMPARE(found[i].name, expected[i].name);
            QCOMPARE(found[i].fields.size(), expected[i].fields.size());
            for (std::size_t f = 0; f < found[i].fields.size(); ++f) {
                QCOMPARE(found[i].fields[f].name, expected[i].fields[f].name);
                QCOMPARE(found[i].fields[f].type, expected[i].fields[f].type);
                QCOMPARE(found[i].fields[f].size, expected[i].fields[f].size);
            }
            QCOMPARE(found[i].indexes.size(), expected[i].indexes.size());
            for (std::size_t x = 0; x < found[i].indexes.size(); ++x) {
                QCOMPARE(found[i].indexes[x].name, expected[i].indexes[x].name);
                QCOMPARE(found[i].indexes[x].fields, expected[i].indexes[x].fields);
                QCOMPARE(found[i].indexes[x].unique, expected[i].indexes[x].unique);
                QCOMPARE(found[i].indexes[x].primary, expected[i].indexes[x].primary);
            }
        }
    }

    // Rows are read with the fields that were asked for before; another field must come from the same row.
    void any_field_can_be_asked_for_on_any_row() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        fill(database, 400);
        const auto fields = text_fields();
        auto ogrenci = database.OpenRecordset("Ogrenci");
        int student = 0;
        store::scan_all(ogrenci, [&] {
            ++student;
            const std::string& field = fields[static_cast<std::size_t>(student) / 7 % fields.size()];
            const store::Value& name = ogrenci["ADSOY"].value();
            QCOMPARE(ogrenci[field].text(), mark(student, field));
            QCOMPARE(name.text(), mark(student, "ADSOY"));
        });
        QCOMPARE(student, 400);
    }

    void fields_survive_a_change_of_habit() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        fill(database, 3);
        auto ogrenci = database.OpenRecordset("Ogrenci");
        for (int round = 0; round < 3; ++round) {
            ogrenci.Seek("=", {2});
            for (const std::string& field : text_fields()) QCOMPARE(ogrenci[field].text(), mark(2, field));
            for (int seek = 0; seek < 200; ++seek) {
                ogrenci.Seek("=", {1 + seek % 3});
                QCOMPARE(ogrenci["SINIF"].text(), mark(1 + seek % 3, "SINIF"));
            }
        }
        ogrenci.Seek("=", {3});
        ogrenci.Edit();
        QCOMPARE(ogrenci["NOT2"].text(), mark(3, "NOT2"));
        ogrenci["NOT2"] = "yeni";
        QCOMPARE(ogrenci["NOT2"].text(), "yeni");
        ogrenci.Update();
        QCOMPARE(ogrenci["NOT2"].text(), "yeni");
        QCOMPARE(ogrenci["VELI"].text(), mark(3, "VELI"));
    }
};

static const Registered<FieldsTest> registered;
#include "fields_test.moc"
