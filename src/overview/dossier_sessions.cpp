#include "overview/dossier_sections.h"
#include "overview/dossier_table.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int lesson_column = 3;

const DossierTable& table() {
    static const DossierTable sessions{QStringLiteral("ETÜDLER"),
                                       10700,
                                       {{QStringLiteral("Tarih"), 600, 1, Placing::left, 600},
                                        {QStringLiteral("Saat"), 1700, 2, Placing::left, 1700},
                                        {QStringLiteral("Ders"), 2500, lesson_column, Placing::left, 2500},
                                        {QStringLiteral("Öğretmen"), 4500, 4, Placing::left, 4500},
                                        {QStringLiteral("Konu"), 7000, 5, Placing::left, 7000},
                                        {QStringLiteral("Girdi(X)"), 10000, 0, Placing::left, 10200}}};
    return sessions;
}

struct LessonCount {
    QString name;
    int sessions = 0;
    int attended = 0;
};

// In the order in which the lessons first appear.
class LessonCounts {
public:
    void add(const QString& lesson) {
        auto entry = std::ranges::find(entries_, lesson, &LessonCount::name);
        if (entry == entries_.end()) entry = entries_.insert(entry, LessonCount{lesson});
        ++entry->sessions;
        // The office's rule looks for the mark in the lesson's name.
        if (lesson == u"X") ++entry->attended;
    }
    const std::vector<LessonCount>& entries() const { return entries_; }

private:
    std::vector<LessonCount> entries_;
};

void print_count(DossierPages& pages, const LessonCount& lesson) {
    constexpr double count_base = 1000, step = 300;
    const QString sessions = QString::number(lesson.sessions);
    pages.print(placed(Placing::five_digit, count_base, sessions),
                sessions + QStringLiteral("  kez ") + lesson.name +
                    QStringLiteral(" dersinden etüd almış,  devamlılığı = ") + QString::number(lesson.attended));
    pages.next_line(step);
}

}  // namespace

void dossier_sections::study_sessions(DossierPages& pages, const Kurvo& kurvo) {
    const GridView& grid = *kurvo.FToplu_ETUDLER;
    open_section(pages, table());
    LessonCounts counts;
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row) {
        counts.add(grid.text(row, lesson_column));
        print_row(pages, table(), grid, row);
    }
    pages.next_line(200);
    for (const LessonCount& lesson : counts.entries()) print_count(pages, lesson);
}
