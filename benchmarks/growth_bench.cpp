// How the acts grow with the school: the time at 1,000, 10,000 and 100,000 students, and the exponent of their power
// law. Only for who names it, since the schools take a while to make and room on the disk.
#include "benches.h"
#include "platform/clock.h"
#include "platform/grid_view.h"
#include "raw_store.h"
#include "register/student_list.h"
#include "running_program.h"
#include "till.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <array>
#include <cmath>
#include <cstdio>

namespace bench {

namespace {

constexpr std::array sizes{1'000, 10'000, 100'000};  // students
using Times = std::array<Seconds, sizes.size()>;

constexpr int cards = 50, postings = 9;

struct Act {
    const char* name;
    double allowed;  // the most that the exponent may be; 0 for an act that is not the program's
    Times times{};
};

// The slope of the straight line through the logarithms that leaves the least squares.
double exponent(const Times& times) {
    double x = 0, y = 0, xx = 0, xy = 0;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const double log_size = std::log(sizes[i]), log_time = std::log(times[i]);
        x += log_size;
        y += log_time;
        xx += log_size * log_size;
        xy += log_size * log_time;
    }
    const auto n = static_cast<double>(sizes.size());
    return (n * xy - x * y) / (n * xx - x * x);
}

Seconds time_of_list(RunningProgram& program) {
    StudentCard card(program->form(), program->session(), {});
    StudentList list(program->form(), program->session(), card);
    return median_time([&] { return timed([&] { list.ogrenci_listele(); }); });
}

// Tells how far the list owes its growth to the file, which fits into the cache of pages at the smallest size only.
Seconds time_of_raw_list() {
    RawFile term(BigSchool::term_file);
    RawStatement rows = term.prepare("SELECT SINIF, ONO, ADSOY FROM Ogrenci INDEXED BY \"Ogrenci.ONOX\" ORDER BY ONO");
    const auto read = [&] {
        while (rows.step()) {
            keep(rows.text(0));
            keep(rows.number(1));
            keep(rows.text(2));
        }
        rows.reset();
    };
    return median_time([&] { return timed(read); });
}

Seconds time_of_card(RunningProgram& program, const BigSchool& school) {
    QLineEdit& box = *program->form().LONO;
    std::size_t next = 0;
    const auto show = [&] {
        for (int i = 0; i < cards; ++i) {
            box.setText(QString::number(school.numbers()[next++ % school.numbers().size()], 'f', 0));
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
            QCoreApplication::sendEvent(&box, &press);
        }
    };
    return median_time([&] { return timed(show, cards); });
}

Seconds time_of_search(RunningProgram& program) {
    Kurvo& form = program->form();
    form.CommandSBUL->click();
    form.FSBUL_soyad->setText(QStringLiteral("YILMAZ"));
    return median_time([&] { return timed([&] { form.CommandSARA->click(); }); });
}

Seconds time_of_posting() {
    const std::vector<DueStudent> students = due_students(20);
    QDateTime now(QDate(2026, 11, 24), QTime(9, 0));
    const clock_source::Override moving([&] { return now = now.addSecs(1); });
    Till till;
    std::size_t next = 0;
    return median_time(
        [&] {
            till.prepare(students[next++ % students.size()].number);
            return timed([&] { till.post(); });
        },
        postings);
}

using Acts = std::array<Act, 5>;

Acts acts() {
    return {{{"ogrenci_listele", 1.1},
             {"the same rows raw", 0},
             {"ogrenci_goster", 0.2},
             {"name search", 1.1},
             {"posting", 0.2}}};
}

void print(const Acts& measured) {
    std::printf("%-20s", "growth");
    for (const int size : sizes) std::printf(" %12d", size);
    std::printf(" %9s %9s\n", "exponent", "allowed");
    for (const Act& act : measured) {
        std::printf("%-20s", act.name);
        for (const Seconds time : act.times) std::printf(" %12s", in_words(time).c_str());
        const double slope = exponent(act.times);
        std::printf(" %9.2f", slope);
        if (act.allowed > 0) std::printf(" %9.1f  %s", act.allowed, slope <= act.allowed ? "ok" : "over");
        std::printf("\n");
    }
}

}  // namespace

void measure_growth(const QString& build_folder) {
    Acts measured = acts();
    auto& [list, raw_list, card, search, posting] = measured;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const BigSchool school(build_folder, sizes[i]);
        {
            RunningProgram program(school);
            card.times[i] = time_of_card(program, school);
            search.times[i] = time_of_search(program);
            // Last: its handlers stay on the form, whose events would call them when they are gone.
            list.times[i] = time_of_list(program);
        }
        raw_list.times[i] = time_of_raw_list();
        posting.times[i] = time_of_posting();
    }
    print(measured);
}

}  // namespace bench
