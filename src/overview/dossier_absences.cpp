#include "overview/dossier_sections.h"
#include "overview/dossier_table.h"

#include <QSet>

#include <array>

namespace {

constexpr double lesson_x = 2000;
constexpr std::array hour_bases{4000.0, 5000.0, 6000.0};

DossierTable table(const QString& title) {
    return {title,
            7000,
            {{QStringLiteral("Tarih"), 600, 0, Placing::left, 600},
             {QStringLiteral("Ders"), lesson_x, 4, Placing::left, lesson_x},
             {QStringLiteral("İzinli"), 4000, 1, Placing::five_digit, hour_bases[0]},
             {QStringLiteral("İzinsiz"), 5000, 2, Placing::five_digit, hour_bases[1]},
             {QStringLiteral("Raporlu"), 6000, 3, Placing::five_digit, hour_bases[2]}}};
}

void print_days(DossierPages& pages, const QString& title, const GridView& grid,
                const std::array<const QLabel*, 3>& totals) {
    const DossierTable section = table(title);
    open_section(pages, section);
    QSet<QString> days;
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row) {
        days.insert(grid.text(row, 0));
        print_row(pages, section, grid, row);
    }
    pages.print(lesson_x, QStringLiteral("Toplam"));
    for (std::size_t i = 0; i < totals.size(); ++i) {
        const QString total = totals[i]->text();
        pages.print(placed(Placing::five_digit, hour_bases[i], total), total);
    }
    pages.down(400);
    pages.print(lesson_x, QStringLiteral("Toplam devamsız olduğu gün sayısı = %1").arg(days.size()));
}

}  // namespace

void dossier_sections::absences(DossierPages& pages, const Kurvo& kurvo) {
    print_days(pages, QStringLiteral("DEVAMSIZLIKLAR"), *kurvo.FToplu_DEVAMS,
               {kurvo.FToplu_TOP1, kurvo.FToplu_TOP2, kurvo.FToplu_TOP3});
}

void dossier_sections::study_absences(DossierPages& pages, const Kurvo& kurvo) {
    print_days(pages, QStringLiteral("ZORUNLU ETÜD DEVAMSIZLIKLARI"), *kurvo.FToplu_DEVAMSe,
               {kurvo.FToplu_TOP1e, kurvo.FToplu_TOP2e, kurvo.FToplu_TOP3e});
}
