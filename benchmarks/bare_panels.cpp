#include "bare_panels.h"

#include "big_school.h"
#include "platform/paths.h"
#include "session/scratch_file.h"

#include <QFile>

namespace bench {

namespace {

std::vector<std::array<std::string, 2>> taught_lessons() {
    std::vector<std::array<std::string, 2>> lessons;
    RawFile reference(BigSchool::reference_file);
    RawStatement rows = reference.prepare("SELECT KOD, TANIM FROM Ders ORDER BY KOD");
    while (rows.step()) lessons.push_back({rows.text(0), rows.text(1)});
    return lessons;
}

std::string shown_date(const std::string& key) {
    return key.substr(6, 2) + '.' + key.substr(4, 2) + '.' + key.substr(0, 4);
}
std::string shown_time(const std::string& hhmm) {
    return hhmm.substr(0, 2) + ':' + hhmm.substr(2, 2);
}
QString whole(double number) {
    return QString::number(static_cast<qint64>(number));
}

}  // namespace

RawNames::RawNames() : reference_(BigSchool::reference_file) {}

const std::string& RawNames::lesson(const std::string& code) {
    const auto [place, is_new] = known_lessons_.try_emplace(code);
    if (is_new && lessons_.bind(1, code).step()) place->second = lessons_.text(0);
    lessons_.reset();
    return place->second;
}

const std::string& RawNames::teacher(double number) {
    const auto [place, is_new] = known_teachers_.try_emplace(number);
    if (is_new && teachers_.bind(1, number).step()) place->second = teachers_.text(0);
    teachers_.reset();
    return place->second;
}

BareAbsences::Tab::Tab(RawFile& term, const char* absences_sql, const char* excuses_sql)
    : absences(term.prepare(absences_sql)), excuses(term.prepare(excuses_sql)) {}

BareAbsences::BareAbsences()
    : term_(BigSchool::term_file),
      taught_(taught_lessons()),
      class_(term_,
             "SELECT TARIH, DKOD, IZINLI, IZINSIZ, RAPORLU FROM Devam INDEXED BY \"Devam.OTDX\" WHERE ONO=? "
             "ORDER BY TARIH, DKOD",
             "SELECT TARIH, ACK FROM Dmazeret INDEXED BY \"Dmazeret.OTX\" WHERE ONO=? ORDER BY TARIH"),
      study_(term_,
             "SELECT TARIH, DKOD, IZINLI, IZINSIZ, RAPORLU FROM EtudDevam INDEXED BY \"EtudDevam.OTDX\" WHERE ONO=? "
             "ORDER BY TARIH, DKOD",
             "SELECT TARIH, ACK FROM Emazeret INDEXED BY \"Emazeret.OTX\" WHERE ONO=? ORDER BY TARIH") {}

void BareAbsences::fill(double student) {
    class_.fill(student, taught_);
    study_.fill(student, taught_);
}

void BareAbsences::Tab::fill(double student, const std::vector<std::array<std::string, 2>>& taught) {
    struct Day {
        std::string date, code;
        Hours hours;
    };
    std::vector<Day> read;
    absences.bind(1, student);
    while (absences.step())
        read.push_back(
            {absences.text(0), absences.text(1), {absences.number(2), absences.number(3), absences.number(4)}});
    absences.reset();
    std::unordered_map<std::string, std::string> excuse_of;
    excuses.bind(1, student);
    while (excuses.step()) excuse_of.emplace(excuses.text(0), excuses.text(1));
    excuses.reset();

    struct Lesson {
        const std::string* name;
        Hours missed{};
    };
    std::unordered_map<std::string, Lesson> by_code;
    for (const auto& [code, name] : taught) by_code.emplace(code, Lesson{&name});
    Hours all{};
    days.set_rows(static_cast<int>(read.size()));
    int row = 0;
    for (const Day& day : read) {
        Lesson& lesson = by_code.at(day.code);
        days.set(row, 0, shown_date(day.date));
        for (std::size_t i = 0; i < day.hours.size(); ++i) {
            days.set(row, 1 + static_cast<int>(i), whole(day.hours[i]));
            lesson.missed[i] += day.hours[i];
            all[i] += day.hours[i];
        }
        days.set(row, 4, *lesson.name);
        const auto excuse = excuse_of.find(day.date);
        days.set(row++, 5, excuse == excuse_of.end() ? std::string() : excuse->second);
    }
    lessons.set_rows(static_cast<int>(taught.size()));
    row = 0;
    for (const auto& [code, name] : taught) {
        lessons.set(row, 0, code);
        lessons.set(row, 1, name);
        for (std::size_t i = 0; i < all.size(); ++i)
            lessons.set(row, 2 + static_cast<int>(i), whole(by_code.at(code).missed[i]));
        ++row;
    }
    for (std::size_t i = 0; i < all.size(); ++i) totals[i].setText(whole(all[i]));
}

BareSessions::BareSessions() : term_(BigSchool::term_file) {
    for (const auto& [code, name] : taught_lessons()) taught_.push_back(code);
}

void BareSessions::fill(double student) {
    struct Session {
        std::array<std::string, 4> cells;  // attended, date, start, lesson
        double teacher;
        std::string topic;
    };
    std::vector<Session> read;
    std::unordered_map<std::string, std::array<int, 2>> counts;
    sessions_.bind(1, student);
    while (sessions_.step()) {
        keep(sessions_.text(2));
        read.push_back({{sessions_.text(5), sessions_.text(0), sessions_.text(1), sessions_.text(3)},
                        sessions_.number(4),
                        sessions_.text(6)});
        std::array<int, 2>& count = counts[read.back().cells[3]];
        ++count[0];
        count[1] += read.back().cells[0] == " " ? 1 : 0;
    }
    sessions_.reset();

    RawNames names;
    records_.set_rows(static_cast<int>(read.size()));
    int row = 0;
    for (const Session& session : read) {
        records_.set(row, 0, session.cells[0]);
        records_.set(row, 1, shown_date(session.cells[1]));
        records_.set(row, 2, shown_time(session.cells[2]));
        records_.set(row, 3, names.lesson(session.cells[3]));
        records_.set(row, 4, names.teacher(session.teacher));
        records_.set(row++, 5, session.topic);
    }
    lessons_.set_rows(static_cast<int>(taught_.size()));
    row = 0;
    for (const std::string& code : taught_) {
        for (std::size_t i = 0; i < 2; ++i) lessons_.set(row, 2 + static_cast<int>(i), whole(counts[code][i]));
        ++row;
    }
}

BareBoard::BareBoard() : term_(BigSchool::term_file) {}

void BareBoard::fill(const std::string& day) {
    {
        QFile file(paths::native(scratch_file));
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) throw std::runtime_error("a scratch file is left");
    }
    {
        RawFile scratch(scratch_file);
        scratch.run("PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF; BEGIN");
        scratch.run(
            "CREATE TABLE Kayit (SAAT TEXT COLLATE TURKISH, BITSAAT TEXT COLLATE TURKISH, KOD TEXT COLLATE TURKISH, "
            "SICIL INTEGER, SAY SMALLINT, KONU TEXT);"
            "CREATE UNIQUE INDEX TX ON Kayit (SAAT, BITSAAT, KOD, SICIL)");
        fold(scratch, day);
        show(scratch);
        scratch.run("ROLLBACK");
    }
    paths::remove(scratch_file);
}

void BareBoard::fold(RawFile& scratch, const std::string& day) {
    RawStatement count = scratch.prepare(
        "INSERT INTO Kayit VALUES (?,?,?,?,1,?) ON CONFLICT (SAAT, BITSAAT, KOD, SICIL) DO UPDATE SET SAY=SAY+1");
    sessions_.bind(1, day);
    while (sessions_.step())
        count.bind(1, sessions_.text(0))
            .bind(2, sessions_.text(1))
            .bind(3, sessions_.text(2))
            .bind(4, sessions_.number(3))
            .bind(5, sessions_.text(4))
            .run();
    sessions_.reset();
}

void BareBoard::show(RawFile& scratch) {
    RawNames names;
    RawStatement counting = scratch.prepare("SELECT COUNT(*) FROM Kayit");
    counting.step();
    board_.set_rows(static_cast<int>(counting.number(0)));
    counting.reset();
    RawStatement rows =
        scratch.prepare("SELECT SAAT, BITSAAT, KOD, SAY, SICIL, KONU FROM Kayit ORDER BY SAAT, BITSAAT, KOD, SICIL");
    for (int row = 0; rows.step(); ++row) {
        board_.set(row, 0, shown_time(rows.text(0)));
        board_.set(row, 1, shown_time(rows.text(1)));
        board_.set(row, 2, names.lesson(rows.text(2)));
        board_.set(row, 3, rows.text(3));
        board_.set(row, 4, names.teacher(rows.number(4)));
        board_.set(row, 5, rows.text(5));
    }
}

}  // namespace bench
