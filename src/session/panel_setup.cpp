#include "session/panel_setup.h"

#include "forms/column_widths.h"
#include "forms/kurvo.h"
#include "platform/clock.h"
#include "platform/grid_view.h"
#include "platform/screen_units.h"
#include "session/context.h"

#include <QFontDatabase>

namespace {

// The look of a heading row and of fixed columns, as blue-green-red numbers.
struct Colors {
    unsigned back, fore;
};
constexpr Colors dark_blue{0xC00000, 0xFFFFFF};
constexpr Colors grey{0x808080, 0xFFFFFF};
constexpr Colors dark_green{0x008000, 0xFFFFFF};
constexpr Colors red{0x0000C0, 0xFFFFFF};
constexpr Colors pale_cyan{0xFFFFC0, 0x000000};
constexpr Colors yellow{0x80FFFF, 0x000000};
constexpr Colors yellow_and_navy{0x00FFFF, 0x800000};
constexpr unsigned pale_yellow = 0xC0FFFF;
constexpr unsigned pale_green_grey = 0xCAE8E6;
constexpr Colors pale{0xE8E0D8, 0x000000};

// A grid of one heading row and no more.
void lay_out(GridView* grid, int fixed_columns, Colors colors, const std::vector<int>& widths,
             const QStringList& headings) {
    grid->set_fixed(1, fixed_columns);
    grid->set_fixed_colors(screen_units::color(colors.back), screen_units::color(colors.fore));
    grid->set_widths(widths);
    grid->set_rows(1);
    grid->set_row(0, headings);
}

void align(GridView* grid, std::initializer_list<int> columns, Qt::Alignment alignment) {
    for (const int column : columns) grid->set_alignment(column, alignment);
}

void set_up_search(Kurvo& kurvo) {
    kurvo.TABLO_SBUL->set_widths({600, 1000, 3500, 1});  // the last holds the row in the list
    kurvo.TABLO_SBUL->set_rows(0);
}

void set_up_collections(Kurvo& kurvo) {
    kurvo.FTahsil_Tablo2->set_widths(column_widths::open);
    kurvo.FTahsil_Tablo2->set_rows(0);
    kurvo.FTahsil_TABLO4->set_widths(column_widths::chosen);
    align(kurvo.FTahsil_Tablo2, {2, 6}, Qt::AlignRight);
    align(kurvo.FTahsil_TABLO4, {3, 4}, Qt::AlignRight);
    kurvo.FTahsil_TARIH->setDate(clock_source::today());
}

void set_up_attendance(Kurvo& kurvo) {
    lay_out(kurvo.FDevam_Tablo2, 2, dark_blue, {1, 2000, 850, 850, 850},
            {QString(), QStringLiteral("Ders"), QStringLiteral("   İzinli"), QStringLiteral("  İzinsiz"),
             QStringLiteral("  Raporlu")});
    align(kurvo.FDevam_Tablo2, {2, 3, 4}, Qt::AlignRight);
    kurvo.FDevam_Tablo2->set_cell_color(screen_units::color(pale_yellow));
    kurvo.FDevam_Tablo2->set_selection_colors(screen_units::color(grey.back), screen_units::color(grey.fore));
    kurvo.FDevam_TARIH->setDate(clock_source::today());
}

void set_up_sessions(Kurvo& kurvo) {
    lay_out(kurvo.FEtud_Tablo1, 0, grey, {900, 600, 600, 1500, 2100, 2280},
            {QStringLiteral("Tarih"), QStringLiteral("Saat"), QStringLiteral("Bitiş"), QStringLiteral("Ders"),
             QStringLiteral("Öğretmen"), QStringLiteral("Konu")});
    lay_out(kurvo.FEtud_Tablo2, 0, dark_green, {500, 500, 1200, 350, 2500, 2950},
            {QStringLiteral("Saat"), QStringLiteral("Bitiş"), QStringLiteral("Ders"), QStringLiteral("Kişi"),
             QStringLiteral("Öğretmen"), QStringLiteral("Konu")});
    align(kurvo.FEtud_Tablo2, {3}, Qt::AlignRight);
    kurvo.FEtud_Tablo2->set_cell_color(screen_units::color(pale_green_grey));
    for (GridView* grid : {kurvo.FEtud_Tablo1, kurvo.FEtud_Tablo2}) grid->set_stretch_column(5);
    kurvo.FEtud_TARIH->setDate(clock_source::today());
}

// A click on one of its rows narrows the grid beside it, so its current row must stand out.
void mark_lesson(GridView* lessons) {
    lessons->set_selection_colors(screen_units::color(yellow_and_navy.back), screen_units::color(yellow_and_navy.fore));
}

void set_up_absences(GridView* lessons, GridView* days) {
    lay_out(lessons, 2, dark_blue, {1, 1500, 650, 650, 650},
            {QString(), QStringLiteral("Ders"), QStringLiteral("  İzinli"), QStringLiteral("İzinsiz"),
             QStringLiteral("Raporlu")});
    lay_out(days, 1, pale_cyan, {950, 600, 600, 640, 1150, 5000},
            {QStringLiteral("  Tarih"), QStringLiteral("İzinli"), QStringLiteral("İzinsiz"), QStringLiteral("Raporlu"),
             QStringLiteral("Ders"), QStringLiteral("Mazeret")});
    align(lessons, {2, 3, 4}, Qt::AlignRight);
    mark_lesson(lessons);
    align(days, {1, 2, 3}, Qt::AlignRight);
    days->set_stretch_column(5);
}

// The user who takes payments has the statement filled without seeing it.
void set_up_statement(Kurvo& kurvo) {
    lay_out(kurvo.FToplu_Tablo2, 0, pale, {950, 700, 600, 600, 600, 1950, 1000, 2300},
            {QStringLiteral("Vade Tarihi"), QStringLiteral("Öd.Şek."), QStringLiteral("Tutar"), QStringLiteral("Ödeme"),
             QStringLiteral("Kalan"), QStringLiteral("Açıklama"), QStringLiteral("Kasa Fiş No"),
             QStringLiteral("Ödeme Bilgisi")});
    align(kurvo.FToplu_Tablo2, {2, 3, 4}, Qt::AlignRight);
    kurvo.FToplu_Tablo2->set_stretch_column(7);
}

void set_up_overview(Kurvo& kurvo, const SessionContext& session) {
    set_up_absences(kurvo.FToplu_DERSLER, kurvo.FToplu_DEVAMS);
    set_up_absences(kurvo.FToplu_DERSLERe, kurvo.FToplu_DEVAMSe);
    lay_out(kurvo.FToplu_DERSLER_ETUD, 2, dark_blue, {1, 1400, 500, 500},
            {QString(), QStringLiteral("Ders"), QStringLiteral("Etd Sy"), QStringLiteral("Grmdi")});
    align(kurvo.FToplu_DERSLER_ETUD, {2, 3}, Qt::AlignRight);
    mark_lesson(kurvo.FToplu_DERSLER_ETUD);
    lay_out(kurvo.FToplu_ETUDLER, 0, red, {300, 900, 500, 900, 1700, 1100},
            {QStringLiteral("Girdi"), QStringLiteral("Tarih"), QStringLiteral("Saat"), QStringLiteral("Ders"),
             QStringLiteral("Öğretmen"), QStringLiteral("Konu")});
    kurvo.FToplu_ETUDLER->set_alignment(0, Qt::AlignCenter);
    kurvo.FToplu_ETUDLER->set_stretch_column(5);
    lay_out(kurvo.FToplu_TABLO3, 0, yellow, {1000, 1200, 900, 500, 1000},
            {QStringLiteral("Tarih"), QStringLiteral("Ödenen"), QStringLiteral("Belge No"), QStringLiteral("BTip"),
             QStringLiteral("Kasa Fiş No")});
    kurvo.FToplu_TABLO3->set_alignment(1, Qt::AlignRight);
    kurvo.ChkY[4]->setVisible(session.collectionsAllowed != 0);
}

void fill_lesson_rows(GridView* grid, const std::vector<Lesson>& lessons) {
    const GridView::Filling filling(*grid);
    grid->set_rows(static_cast<int>(lessons.size()) + 1);
    int row = 0;
    for (const Lesson& lesson : lessons) grid->set_row(++row, {lesson.code, lesson.name});
}

void fill_booking_lists(Kurvo& kurvo, const ReferenceLists& reference) {
    kurvo.FEtud_DKOD->clear();
    for (const Lesson& lesson : reference.lessons)
        kurvo.FEtud_DKOD->addItem(lesson.name + QStringLiteral("   (") + lesson.code + u')');
    kurvo.FEtud_DKOD->setCurrentIndex(-1);
    kurvo.FEtud_SICIL->clear();
    kurvo.FEtud_SICIL->addItems(reference.teachers);
    kurvo.FEtud_SICIL->setCurrentIndex(-1);
}

// What an exam grid has behind its first two columns: texts and equally wide columns.
struct ExamColumns {
    QStringList headings;
    int width;  // twips
};

void set_up_exam(GridView* grid, const std::vector<ExamColumns>& groups) {
    QStringList headings{QStringLiteral("SnvNo"), QStringLiteral("Tarih")};
    std::vector<int> widths{500, 1000};
    for (const ExamColumns& group : groups) {
        headings += group.headings;
        widths.insert(widths.end(), static_cast<std::size_t>(group.headings.size()), group.width);
    }
    lay_out(grid, 2, pale, widths, headings);
}

QStringList numbered(const QString& name, int last) {
    QStringList names;
    for (int i = 1; i <= last; ++i) names.append(name + QString::number(i));
    return names;
}

QStringList words(const QString& text) {
    return text.split(u' ');
}

}  // namespace

void set_up_list(Kurvo& kurvo) {
    kurvo.TABLO->set_widths(column_widths::list);
    kurvo.TABLO->set_rows(0);
}

void set_up_note_fonts(Kurvo& kurvo) {
    const QString usual = QStringLiteral("Arial");
    QStringList fonts = QFontDatabase::families();
    // A machine without it has a font that stands in for it.
    if (!fonts.contains(usual)) fonts.insert(std::ranges::lower_bound(fonts, usual), usual);
    kurvo.ComboFont->clear();
    kurvo.ComboFont->addItems(fonts);
    kurvo.ComboFont->setCurrentText(usual);
    kurvo.ComboSize->setCurrentText(QStringLiteral("10"));
}

void set_up_panels(Kurvo& kurvo, const SessionContext& session) {
    set_up_search(kurvo);
    if (!kurvo.CommandTAHSILAT->isHidden()) set_up_collections(kurvo);
    if (!kurvo.CommandDEVAMSIZLIK->isHidden()) set_up_attendance(kurvo);
    if (!kurvo.CommandETUD->isHidden()) set_up_sessions(kurvo);
    if (!kurvo.CommandTOPLU->isHidden()) set_up_overview(kurvo, session);
    set_up_statement(kurvo);
}

void fill_lessons(Kurvo& kurvo, const SessionContext& session) {
    const std::vector<Lesson>& lessons = session.reference.lessons;
    if (!kurvo.CommandDEVAMSIZLIK->isHidden()) fill_lesson_rows(kurvo.FDevam_Tablo2, lessons);
    if (!kurvo.CommandETUD->isHidden()) fill_booking_lists(kurvo, session.reference);
    if (kurvo.CommandTOPLU->isHidden()) return;
    for (GridView* grid : {kurvo.FToplu_DERSLER, kurvo.FToplu_DERSLERe, kurvo.FToplu_DERSLER_ETUD})
        fill_lesson_rows(grid, lessons);
}

void set_up_exams(Kurvo& kurvo) {
    set_up_exam(kurvo.OGES_tablo,
                {{words(QStringLiteral("Türkçe Matematik İnk.Tarihi Fen-Tekn. Y.Dil Din-Ahlak Toplam")), 800},
                 {{QStringLiteral("PUAN")}, 1000},
                 {{QStringLiteral("Sıralama")}, 800}});
    set_up_exam(kurvo.YGS_tablo, {{words(QStringLiteral("Türkçe Matematik Sosyal Fen Toplam")), 800},
                                  {numbered(QStringLiteral("YGS-"), 6), 1000}});
    set_up_exam(kurvo.LYS_tablo, {{words(QStringLiteral("Mat Geo Fiz Kim Biy Edb Coğ1 Tar Coğ2 Fel YDil")), 600},
                                  {words(QStringLiteral("MF1 MF2 MF3 MF4 TM1 TM2 TM3 TS1 TS2 YD1 YD2")), 800}});
    set_up_exam(kurvo.KTT_tablo, {{{QStringLiteral("PUAN")}, 900},
                                  {{QStringLiteral("Toplam")}, 800},
                                  {numbered(QStringLiteral("Drs"), 16), 600}});
}
