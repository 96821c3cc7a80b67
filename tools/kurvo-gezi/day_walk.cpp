// A morning at the desk: absences of two students by the keyboard, and one study session booked for five of them.
#include "platform/cell_editor.h"
#include "platform/clock.h"
#include "walk.h"

#include <QComboBox>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int booked_students = 5;

class Day {
public:
    explicit Day(Clerk& clerk)
        : clerk_(clerk), kurvo_(clerk.kurvo()), debtor_(clerk.office().debtor()), people_(clerk.office().students()) {}

    void enter_absences();
    void next_student_by_enter();
    void enter_compulsory();
    void open_sessions();
    void book();
    void book_the_others();
    void cancel_one();

private:
    void pick(int number) { clerk_.type(kurvo_.LONO, QString::number(number), Qt::Key_Return); }
    QString shown_hours(int row, int column) const { return kurvo_.FDevam_Tablo2->text(row, column); }
    int board_row() const;

    Clerk& clerk_;
    Kurvo& kurvo_;
    Office::Person debtor_;
    std::vector<Office::Person> people_;
};

void Day::enter_absences() {
    pick(debtor_.number);
    clerk_.press(kurvo_.CommandDEVAMSIZLIK);
    kurvo_.FDevam_TARIH->setDate(clock_source::today());
    clerk_.click_cell(*kurvo_.FDevam_Tablo2, 1, 2);
    clerk_.type(kurvo_.FDevam_Cel_In, u"2"_s, Qt::Key_Down);
    clerk_.type(kurvo_.FDevam_Cel_In, u"1"_s, Qt::Key_Right);
    clerk_.type(kurvo_.FDevam_Cel_In, u"3"_s);
    clerk_.type(kurvo_.MAZERET, u"Diş hekimine gitti, velisi aradı"_s, Qt::Key_Return);
    must(shown_hours(1, 2) + shown_hours(2, 2) + shown_hours(2, 3) == u"213", u"the absences are not stored"_s);
    must(kurvo_.MAZERET->text().startsWith(u"Diş"), u"the excuse is not stored"_s);
}

// Number, Enter, Enter: the card, then the save of an empty day.
void Day::next_student_by_enter() {
    const int number = people_[3].number == debtor_.number ? people_[4].number : people_[3].number;
    clerk_.key(Qt::Key_F2);
    pick(number);
    must(kurvo_.default_button() == kurvo_.FDevam_CommandKAYDET, u"Enter would not save"_s);
    clerk_.click_cell(*kurvo_.FDevam_Tablo2, 3, 4);
    clerk_.type(kurvo_.FDevam_Cel_In, u"4"_s, Qt::Key_Return);
    must(shown_hours(3, 4) == u"4", u"the second student's absence is not stored"_s);
    pick(debtor_.number);
    must(shown_hours(3, 4).isEmpty() && shown_hours(1, 2) == u"2", u"the panel does not follow the card"_s);
}

void Day::enter_compulsory() {
    clerk_.press(kurvo_.Zetud);
    must(shown_hours(1, 2).isEmpty(), u"the classes' hours stand in the compulsory sessions"_s);
    clerk_.click_cell(*kurvo_.FDevam_Tablo2, 2, 3);
    clerk_.type(kurvo_.FDevam_Cel_In, u"1"_s, Qt::Key_Return);
    must(shown_hours(2, 3) == u"1", u"the absence from the compulsory session is not stored"_s);
}

void Day::open_sessions() {
    clerk_.press(kurvo_.CommandETUD);
    must(kurvo_.FEtud_BASLIK2->text().endsWith(u" tarihindeki etüdler :"), u"the day board has no heading"_s);
}

int Day::board_row() const {
    for (int row = 1; row < kurvo_.FEtud_Tablo2->rows(); ++row)
        if (kurvo_.FEtud_Tablo2->text(row, 5) == u"Türev soruları") return row;
    return 0;
}

void Day::book() {
    clerk_.type(kurvo_.FEtud_SAAT, u"15"_s);
    must(kurvo_.FEtud_DAKIKA->hasFocus(), u"two digits of the hour do not lead to the minutes"_s);
    clerk_.type(kurvo_.FEtud_DAKIKA, u"30"_s);
    clerk_.type(kurvo_.FEtud_BITSAAT, u"16"_s);
    clerk_.type(kurvo_.FEtud_BITDAKIKA, u"10"_s);
    for (QComboBox* list : {kurvo_.FEtud_DKOD, kurvo_.FEtud_SICIL}) {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
    }
    clerk_.type(kurvo_.FEtud_KONU, u"Türev soruları"_s, Qt::Key_Return);
    must(board_row() > 0, u"the session is not on the day board"_s);
}

void Day::book_the_others() {
    int booked = 1;
    for (const Office::Person& person : people_) {
        if (booked == booked_students) break;
        if (person.number == debtor_.number) continue;
        clerk_.key(Qt::Key_F2);
        pick(person.number);
        clerk_.key(Qt::Key_Return);
        ++booked;
    }
    must(kurvo_.FEtud_Tablo2->text(board_row(), 3).toInt() == booked_students, u"the five do not share a row"_s);
}

void Day::cancel_one() {
    GridView& sessions = *kurvo_.FEtud_Tablo1;
    int row = sessions.rows() - 1;
    while (row > 0 && sessions.text(row, 5) != u"Türev soruları") --row;
    must(row > 0, u"the student's list lacks the session"_s);
    clerk_.double_click_cell(sessions, row, 3);
    must(kurvo_.FEtud_Tablo2->text(board_row(), 3).toInt() == booked_students - 1, u"the session is not cancelled"_s);
}

}  // namespace

Walk day_walk(Clerk& clerk) {
    const auto day = std::make_shared<Day>(clerk);
    return {
        {u"devamsizlik"_s, {screens::large, screens::small}, [day] { day->enter_absences(); }},
        {u"devamsizlik-sonraki-ogrenci"_s, {}, [day] { day->next_student_by_enter(); }},
        {u"zorunlu-etud"_s, {screens::small}, [day] { day->enter_compulsory(); }},
        {u"etud"_s, {}, [day] { day->open_sessions(); }},
        {u"etud-kaydi"_s, {}, [day] { day->book(); }},
        {u"etud-bes-ogrenci"_s, {screens::large, screens::small}, [day] { day->book_the_others(); }},
        {u"etud-iptal"_s, {screens::small}, [day] { day->cancel_one(); }},
    };
}
