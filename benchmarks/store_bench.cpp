// Seek, walk and edit of the record store beside the same on the raw interface.
#include "benches.h"
#include "raw_store.h"
#include "store/record.h"

namespace bench {

namespace {

constexpr int seeks = 2'000;
constexpr int walked_rows = 100'000;
constexpr int edits = 10;

void measure_seek(Table& table, const std::vector<double>& numbers) {
    store::Database term = store::OpenDatabase(BigSchool::term_file);
    store::Recordset students = term.OpenRecordset("Ogrenci");
    students.Index("ONOX");
    RawFile raw(BigSchool::term_file);
    RawStatement row = raw.prepare("SELECT ADSOY, SINIF, TEL FROM Ogrenci WHERE ONO=?");

    const auto seek_all = [&] {
        for (int i = 0; i < seeks; ++i) {
            students.Seek("=", {numbers[static_cast<std::size_t>(i)]});
            keep(students["ADSOY"].text());
            keep(students["SINIF"].text());
            keep(students["TEL"].text());
        }
    };
    const auto raw_seeks = [&] {
        for (int i = 0; i < seeks; ++i) {
            row.bind(1, numbers[static_cast<std::size_t>(i)]).step();
            keep(row.text(0));
            keep(row.text(1));
            keep(row.text(2));
            row.reset();
        }
    };
    table.compare(
        "Seek \"=\" and three fields", 1.5, [&] { return timed(seek_all, seeks); },
        [&] { return timed(raw_seeks, seeks); });
}

void measure_walk(Table& table) {
    store::Database term = store::OpenDatabase(BigSchool::term_file);
    store::Recordset instalments = term.OpenRecordset("Odeme");
    instalments.Index("OVX");
    RawFile raw(BigSchool::term_file);
    RawStatement rows = raw.prepare("SELECT VADE, TUTAR, ACK FROM Odeme INDEXED BY \"Odeme.OVX\" ORDER BY ONO, VADE");

    const auto walk = [&] {
        instalments.MoveFirst();
        for (int i = 0; i < walked_rows; ++i, instalments.MoveNext()) {
            keep(instalments["VADE"].text());
            keep(instalments["TUTAR"].number());
            keep(instalments["ACK"].text());
        }
    };
    const auto raw_walk = [&] {
        for (int i = 0; i < walked_rows && rows.step(); ++i) {
            keep(rows.text(0));
            keep(rows.number(1));
            keep(rows.text(2));
        }
        rows.reset();
    };
    table.compare(
        "walk of 100,000 rows, three fields", 2, [&] { return timed(walk); }, [&] { return timed(raw_walk); });
}

void measure_edit(Table& table, double student) {
    store::Database term = store::OpenDatabase(BigSchool::term_file);
    store::Recordset students = term.OpenRecordset("Ogrenci");
    students.Index("ONOX");
    RawFile raw(BigSchool::term_file);
    RawStatement update = raw.prepare("UPDATE Ogrenci SET TEL=? WHERE ONO=?");

    const auto edit = [&] {
        students.Seek("=", {student});
        for (int i = 0; i < edits; ++i) {
            students.Edit();
            students["TEL"] = QString::number(5'320'000'000 + i);
            students.Update();
        }
    };
    const auto raw_edit = [&] {
        for (int i = 0; i < edits; ++i) {
            raw.run("BEGIN IMMEDIATE");
            update.bind(1, std::to_string(5'330'000'000 + i)).bind(2, student).run();
            raw.run("COMMIT");
        }
    };
    table.compare(
        "Edit and Update", 1.2, [&] { return timed(edit, edits); }, [&] { return timed(raw_edit, edits); });
}

}  // namespace

void measure_store(Table& table, const BigSchool& school) {
    measure_seek(table, school.numbers());
    measure_walk(table);
    measure_edit(table, school.numbers().front());
}

}  // namespace bench
