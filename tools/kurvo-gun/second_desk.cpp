// The second desk: collects, enters a student, books study sessions, takes a new class and a student of last year in.
#include "desk.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

namespace lesson {
constexpr int maths = 1, turkish = 2;  // places in the list
}
namespace teacher {
constexpr int ayla = 0, omer = 1;
}

void collect(Desk& desk) {
    const std::pair<QString, Collection> collections[]{
        {u"AYŞE ÇELİK"_s, {.student = 1001, .amount = u"1100"_s, .paper = Paper::receipt, .slip = u"K-7"_s}},
        {u"İBRAHİM IŞIK"_s, {.student = 1002, .rows = {0}, .paper = Paper::invoice}},
        {u"ZEYNEP ŞAHİN"_s, {.student = 1003, .rows = {0}, .paper = Paper::plan}},
        {u"OĞUZ ÖZTÜRK"_s, {.student = 1004, .rows = {0}, .date = u"02.10.2026"_s}},
        {u"GÜL DEMİR"_s,
         {.student = 1005,
          .rows = {0},
          .paper = Paper::receipt,
          .date = u"05.10.2026"_s,
          .cash_type = 1,
          .cash_amount = u"250"_s}}};
    for (const auto& [name, collection] : collections) {
        desk.pick(collection.student, name);
        desk.take(collection);
        desk.post();
    }
}

// The fee is fifty more than the plan.
void enter_student_with_equal_instalments(Desk& desk) {
    desk.open_record_form();
    KurvoYeni& form = desk.form();
    Clerk& clerk = desk.clerk;
    clerk.press(form.CommandSON);
    must(form.ONO->text() == u"1011", u"the next number is not behind the other desk's"_s);
    clerk.key(Qt::Key_Tab);
    clerk.type(form.ADSOY, u"Mert Öz"_s);
    clerk.choose(form.SNF, 1);
    clerk.type(form.KTUTAR, u"1400"_s);
    clerk.press(form.CommandYARAT);
    clerk.type_date(form.VADE, u"30.01.2027"_s);
    clerk.type(form.TUTAR, u"450"_s);
    clerk.type(form.OADET->lineEdit(), u"3"_s);
    clerk.press(form.CommandEKLE3);
    desk.print_contract_and_notes();
    clerk.prompts().expect(u"Kayıt tutarı ile taksitler uyumsuz (-50).  Yine de kaydedilsin mi?"_s);
    desk.save();
    desk.close_record_form();
}

void take_from_shared_instalment(Desk& desk) {
    desk.pick(1001, u"AYŞE ÇELİK"_s);
    desk.take({.student = 1001, .rows = {1}, .corrected = u"200"_s, .paper = Paper::invoice});
}

// Minutes that are left empty become "00".
void type_times(Desk& desk, const QString& hour, const QString& minute, const QString& end_hour,
                const QString& end_minute) {
    desk.clerk.type(desk.kurvo.FEtud_SAAT, hour);
    desk.clerk.type(desk.kurvo.FEtud_DAKIKA, minute, minute.isEmpty() ? Qt::Key_Delete : Qt::Key_unknown);
    desk.clerk.type(desk.kurvo.FEtud_BITSAAT, end_hour);
    desk.clerk.type(desk.kurvo.FEtud_BITDAKIKA, end_minute, end_minute.isEmpty() ? Qt::Key_Delete : Qt::Key_unknown);
}

void book_group(Desk& desk) {
    Kurvo& kurvo = desk.kurvo;
    desk.pick(1004, u"OĞUZ ÖZTÜRK"_s);
    desk.clerk.press(kurvo.CommandETUD);
    type_times(desk, u"15"_s, u"30"_s, u"16"_s, u"10"_s);
    desk.clerk.choose(kurvo.FEtud_DKOD, lesson::maths);
    desk.clerk.choose(kurvo.FEtud_SICIL, teacher::omer);
    desk.clerk.type(kurvo.FEtud_KONU, u"Türev"_s, Qt::Key_Return);
    for (const auto& [student, name] : {std::pair(1005, u"GÜL DEMİR"_s), std::pair(1006, u"UMUT KAYA"_s)}) {
        desk.pick(student, name);
        desk.clerk.key(Qt::Key_Return);
    }
    must(kurvo.FEtud_Tablo2->rows() == 2 && kurvo.FEtud_Tablo2->text(1, 3) == u"3", u"the three do not share a row"_s);
}

// The third student of the group gets a teacher alone, the second one's session is cancelled.
void change_sessions(Desk& desk) {
    Kurvo& kurvo = desk.kurvo;
    desk.clerk.choose(kurvo.FEtud_SICIL, teacher::ayla);
    desk.clerk.press(kurvo.CommanOK);
    desk.pick(1005, u"GÜL DEMİR"_s);
    desk.clerk.double_click_cell(*kurvo.FEtud_Tablo1, 1, 3);
    desk.pick(1004, u"OĞUZ ÖZTÜRK"_s);
    desk.clerk.prompts().expect(u"Öğrenci etüdü almış, silinemez."_s);
    desk.clerk.double_click_cell(*kurvo.FEtud_Tablo1, 1, 3);
    desk.pick(1001, u"AYŞE ÇELİK"_s);
    type_times(desk, u"7"_s, {}, u"8"_s, {});
    desk.clerk.choose(kurvo.FEtud_DKOD, lesson::turkish);
    desk.clerk.type(kurvo.FEtud_KONU, u" "_s, Qt::Key_Return);
    must(kurvo.FEtud_Tablo2->rows() == 4, u"not three sessions are left on the day board"_s);
}

void import_class(Desk& desk) {
    desk.clerk.import_students(
        "Elif;Akın;2001;11C;0505 1112233\nMert;Koç;2002;11C;0505.1112244\n;Kaya;2003;11C;\nUmut;Kaya;1006;11C;\n",
        {u"3. satırda ad soyad yok"_s, u"4. satırda mükerrer numara"_s, u"Okunan kayıt sayısı : 5"_s,
         u"Yazılan kayıt sayısı : 2"_s});
}

void take_student_of_last_year(Desk& desk) {
    desk.open_record_form();
    KurvoYeni& form = desk.form();
    Clerk& clerk = desk.clerk;
    clerk.press(form.CommandTEMIZLE);
    clerk.press(form.CommandAL);
    must(form.SBC->currentText() == u"2025", u"last year is not the first term"_s);
    clerk.type(form.FONO, u"501"_s, Qt::Key_Tab);
    clerk.type(form.YONO, u"1040"_s, Qt::Key_Tab);
    must(form.YFADSOY->text() == u"IRMAK ERDEM" && form.YADSOY->text().isEmpty(), u"the numbers are not taken"_s);
    clerk.press(form.CommandAKTAR);
    clerk.choose(form.SNF, 1);
    desk.save();
    desk.close_record_form();
    desk.print_dossier();
}

// What the other desk has done by now is seen here too.
void look_around(Desk& desk) {
    desk.pick(1030, u"ZEYNEP ŞAHİN"_s);
    desk.pick(2001, u"ELIF AKIN"_s);
}

}  // namespace

Walk second_desk(Clerk& clerk) {
    const auto desk = std::make_shared<Desk>(clerk);
    const auto doing = [&](void (*act)(Desk&)) { return [desk, act] { act(*desk); }; };
    return {{u"acildi"_s, {}, &Desk::meet},
            {u"tahsilatlar"_s, {}, doing(collect)},
            {u"tahsilatlar-bitti"_s, {}, &Desk::meet},
            {u"esit-taksitler"_s, {}, doing(enter_student_with_equal_instalments)},
            {u"kayit-bitti"_s, {}, &Desk::meet},
            {u"ayni-taksit"_s, {}, doing(take_from_shared_instalment)},
            {u"ikisi-hazir"_s, {}, &Desk::meet},
            {u"ayni-anda"_s, {}, [desk] { desk->post(); }},
            {u"etud"_s, {}, doing(book_group)},
            {u"etud-degisiklik"_s, {}, doing(change_sessions)},
            {u"etudler-bitti"_s, {}, &Desk::meet},
            {u"yeni-sinif"_s, {}, doing(import_class)},
            {u"gecen-yildan"_s, {}, doing(take_student_of_last_year)},
            {u"is-bitti"_s, {}, &Desk::meet},
            {u"bakis"_s, {}, doing(look_around)},
            {u"kapanis"_s, {}, [desk] { desk->close_program(); }}};
}
