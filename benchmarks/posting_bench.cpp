// Posting a payment on six instalments with an invoice number, the paper left out. A clock that moves at each look
// leaves out the wait for a free second, too.
#include "benches.h"
#include "platform/clock.h"
#include "raw_store.h"
#include "till.h"

#include <QCoreApplication>

namespace bench {

namespace {

// The same rows, each found before it is written, and the same commits.
class BareTill {
public:
    void post(const DueStudent& student, const std::string& day, const std::string& time);

private:
    void take_number();
    void add_cash(const std::string& day, const std::string& time);
    void add_payment(double student, const std::string& due_day, const std::string& day, const std::string& time);

    RawFile term_{BigSchool::term_file};
    RawFile reference_{BigSchool::reference_file};
    RawStatement number_ = reference_.prepare("SELECT SNO FROM Belgeno WHERE SERI='F'");
    RawStatement move_ = reference_.prepare("UPDATE Belgeno SET SNO=? WHERE SERI='F'");
    RawStatement cash_ = reference_.prepare("SELECT rowid FROM Kasa WHERE TARIH=? AND SAAT=?");
    RawStatement add_cash_ =
        reference_.prepare("INSERT INTO Kasa (TARIH, SAAT, ACK, TUTAR, AE, KOD, TIP) VALUES (?,?,?,?,'+','1','TL')");
    RawStatement payment_ = term_.prepare("SELECT rowid FROM Tahsilat WHERE ONO=? AND VADE=? AND TARIH=? AND SAAT=?");
    RawStatement add_payment_ = term_.prepare(
        "INSERT INTO Tahsilat (ONO, VADE, TARIH, SAAT, ODENEN, KSAAT, KASAFNO, BTIP, BNO, FTAR, FNO) "
        "VALUES (?1,?2,?3,?4,?5,?4,' ','F','1',?3,'1')");
    RawStatement instalment_ = term_.prepare("SELECT rowid, ODENEN FROM Odeme WHERE ONO=? AND VADE=?");
    RawStatement pay_ = term_.prepare("UPDATE Odeme SET ODENEN=? WHERE rowid=?");
};

void BareTill::take_number() {
    reference_.run("BEGIN IMMEDIATE");
    number_.step();
    const double last = number_.number(0);
    number_.reset();
    move_.bind(1, last + 1).run();
    reference_.run("COMMIT");
}

void BareTill::add_cash(const std::string& day, const std::string& time) {
    reference_.run("BEGIN IMMEDIATE");
    cash_.bind(1, day).bind(2, time).run();
    add_cash_.bind(1, day).bind(2, time).bind(3, "1250  AYŞE NUR YILDIRIM #2026").bind(4, 6).run();
    reference_.run("COMMIT");
}

void BareTill::add_payment(double student, const std::string& due_day, const std::string& day,
                           const std::string& time) {
    term_.run("BEGIN IMMEDIATE");
    payment_.bind(1, student).bind(2, due_day).bind(3, day).bind(4, time).run();
    add_payment_.bind(1, student).bind(2, due_day).bind(3, day).bind(4, time).bind(5, 1).run();
    instalment_.bind(1, student).bind(2, due_day).step();
    const double row = instalment_.number(0), paid = instalment_.number(1);
    instalment_.reset();
    pay_.bind(1, paid + 1).bind(2, row).run();
    term_.run("COMMIT");
}

void BareTill::post(const DueStudent& student, const std::string& day, const std::string& time) {
    take_number();
    add_cash(day, time);
    for (const std::string& due_day : student.due_days) add_payment(student.number, due_day, day, time);
}

}  // namespace

void measure_posting(Table& table, const BigSchool&) {
    const std::string act = "posting of six instalments";
    if (!table.wants(act)) return;
    const std::vector<DueStudent> students = due_students(20);
    QDateTime now(QDate(2026, 11, 24), QTime(9, 0));
    const clock_source::Override moving([&] { return now = now.addSecs(1); });
    Till till;
    BareTill bare;

    std::size_t next = 0;
    const auto next_student = [&]() -> const DueStudent& { return students[next++ % students.size()]; };
    const auto post = [&] {
        till.prepare(next_student().number);
        const Seconds taken = timed([&] { till.post(); });
        QCoreApplication::processEvents();
        return taken;
    };
    const auto post_bare = [&] {
        const DueStudent& student = next_student();
        const std::string time = dates::time_key(clock_source::now().time()).toStdString();
        return timed([&] { bare.post(student, "20261123", time); });
    };
    table.compare(act, 1.5, post, post_bare);
}

}  // namespace bench
