// The first desk: enters two students, then collects, enters the absences of a class, renumbers, looks into last year.
#include "desk.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

namespace lesson {
constexpr int physics = 1, maths = 2, turkish = 3;  // rows of the attendance grid
}
namespace kind {
constexpr int with_leave = 2, without_leave = 3, with_report = 4;  // its columns
}
namespace payment_form {
constexpr int note = 0, cash = 2, card = 3;
}

void enter_student_with_automatic_plan(Desk& desk) {
    desk.open_record_form();
    KurvoYeni& form = desk.form();
    Clerk& clerk = desk.clerk;
    clerk.press(form.CommandSON);
    must(form.ONO->text() == u"1007", u"the next number is not 1007"_s);
    clerk.key(Qt::Key_Tab);
    clerk.type(form.ADSOY, u"deniz ılgaz"_s);
    clerk.choose(form.SNF, 2);
    clerk.type(form.ADRES1, u"ÇIĞIR SOK. 12"_s);
    clerk.type(form.AILCE, u"NİLÜFER"_s);
    clerk.type(form.AIL, u"BURSA"_s);
    clerk.type(form.TEL, u"0532 111 22 33"_s);
    clerk.choose(form.CINSIYET, 2);
    clerk.type(form.GELOKUL->lineEdit(), u"ÇINAR ORTAOKULU"_s);
    clerk.choose(form.DIN, 8);
    must(form.KTUTAR->text() == u"12000", u"the fee of the grade is not proposed"_s);
    clerk.type(form.VELI, u"NURAY ILGAZ"_s);
    clerk.type(form.VTCNO, u"12345678901"_s);
    clerk.type(form.VGSM, u"0533.444.55.66"_s);
    clerk.type(form.OZKOD->lineEdit(), u"BURSLU"_s);
    clerk.choose(form.ISKONTO, 0);
    clerk.press(form.CommandYARAT);
    clerk.type_date(form.VADE, u"31.10.2026"_s);
    clerk.press(form.OdeOpt[1]);
    clerk.type(form.OADET->lineEdit(), u"4"_s);
    clerk.type(form.YUVAR, u"500"_s);
    clerk.press(form.CommandEKLE3);
    must(form.TABLO2->rows() == 4, u"the plan has not its four instalments"_s);
    desk.print_contract_and_notes();
    desk.save();
}

void enter_student_with_plan_by_hand(Desk& desk) {
    KurvoYeni& form = desk.form();
    Clerk& clerk = desk.clerk;
    clerk.type(form.ONO, u"1010"_s, Qt::Key_Tab);
    clerk.type(form.ADSOY, u"kaan uğur"_s);
    clerk.choose(form.SNF, 1);
    clerk.type(form.KTUTAR, u"3100"_s);
    desk.add_instalment({u"05.10.2026"_s, u"1000"_s, payment_form::cash, u"peşin"_s});
    desk.add_instalment({u"05.11.2026"_s, u"1500"_s, payment_form::card, {}});
    desk.add_instalment({u"05.12.2026"_s, u"500"_s, payment_form::note, {}});
    desk.add_instalment({u"05.01.2027"_s, u"500"_s, payment_form::note, {}});
    clerk.prompts().expect(u"05.01.2027 tarihli ödeme silinecek.  Emin misiniz?"_s);
    clerk.double_click_cell(*form.TABLO2, 3, 2);
    clerk.click_cell(*form.TABLO2, 2, 2);
    desk.add_instalment({u"10.12.2026"_s, u"600"_s, payment_form::note, {}});
    desk.save();
    desk.close_record_form();
}

void collect(Desk& desk) {
    const std::pair<QString, Collection> collections[]{
        {u"DENİZ ILGAZ"_s, {.student = 1007, .rows = {0, 1}, .paper = Paper::receipt}},
        {u"DENİZ ILGAZ"_s, {.student = 1007, .rows = {0}, .corrected = u"700"_s, .paper = Paper::invoice}},
        {u"KAAN UĞUR"_s, {.student = 1010, .amount = u"1000"_s, .slip = u"12"_s}},
        {u"GÜL DEMİR"_s, {.student = 1005, .rows = {0}, .paper = Paper::receipt, .document = u"250"_s}}};
    for (const auto& [name, collection] : collections) {
        desk.pick(collection.student, name);
        desk.take(collection);
        desk.post();
    }
}

void take_from_shared_instalment(Desk& desk) {
    desk.pick(1001, u"AYŞE ÇELİK"_s);
    desk.take({.student = 1001, .rows = {1}, .corrected = u"300"_s, .paper = Paper::receipt});
}

// Of today, row by row down the class; the third student was there after all.
void enter_absences_of_class(Desk& desk) {
    desk.open_attendance();
    desk.enter_hours(lesson::maths, kind::with_leave, u"2"_s, Qt::Key_Down);
    desk.enter_hours(lesson::turkish, kind::with_leave, {}, Qt::Key_Right);
    desk.enter_hours(lesson::turkish, kind::without_leave, u"0"_s, Qt::Key_Right);
    desk.enter_hours(lesson::turkish, kind::with_report, u"1"_s);
    desk.clerk.type(desk.kurvo.MAZERET, u"Rapor getirdi"_s, Qt::Key_Return);
    desk.pick(1002, u"İBRAHİM IŞIK"_s);
    desk.enter_hours(lesson::physics, kind::without_leave, u"2"_s, Qt::Key_Return);
    desk.pick(1003, u"ZEYNEP ŞAHİN"_s);
    for (const QString& hours : {u"1"_s, u"0"_s})
        desk.enter_hours(lesson::maths, kind::without_leave, hours, Qt::Key_Return);
}

void enter_other_absences(Desk& desk) {
    desk.pick(1002, u"İBRAHİM IŞIK"_s);
    desk.clerk.press(desk.kurvo.Zetud);
    desk.enter_hours(lesson::turkish, kind::with_report, u"3"_s);
    desk.clerk.type(desk.kurvo.MAZERET, u"Sağlık ocağı"_s, Qt::Key_Return);
    desk.clerk.press(desk.kurvo.Zetud);
    desk.clerk.type_date(desk.kurvo.FDevam_TARIH, u"02.10.2026"_s);
    desk.enter_hours(lesson::maths, kind::with_leave, u"1"_s, Qt::Key_Return);
    desk.clerk.type_date(desk.kurvo.FDevam_TARIH, u"05.10.2026"_s);
    must(desk.kurvo.FDevam_Tablo2->text(lesson::physics, kind::without_leave) == u"2", u"the day does not return"_s);
}

void write_note(Desk& desk) {
    Kurvo& kurvo = desk.kurvo;
    desk.pick(1001, u"AYŞE ÇELİK"_s);
    desk.clerk.press(kurvo.CommandNOT);
    desk.clerk.press(kurvo.CommandTARIHEKLE);
    desk.clerk.type(kurvo.SAAT, u"14:05"_s);
    desk.clerk.press(kurvo.CommandSAATEKLE);
    desk.clerk.press(kurvo.CheckBold);
    desk.clerk.type_note(u"Velisi arandı."_s);
    desk.clerk.prompts().expect(u"Kaydedildi."_s);
    desk.clerk.press(kurvo.CommandNot_EKLE);
    must(kurvo.FToplu_Text1->toHtml().contains(u"font-weight"), u"the note has lost its bold"_s);
    desk.print_dossier();
}

void renumber(Desk& desk) {
    desk.pick(1003, u"ZEYNEP ŞAHİN"_s);
    desk.open_record_form();
    desk.clerk.press(desk.form().CommandNODGS);
    desk.clerk.type(desk.form().YENINO, u"1030"_s);
    desk.clerk.press(desk.form().CommandNODEGISTIR);
    must(desk.form().ONO->text() == u"1030", u"the student has not the new number"_s);
    desk.close_record_form();
    must(desk.kurvo.LONO->text() == u"1030", u"the card has not the new number"_s);
    desk.print_dossier();
}

void go_to_last_year_and_back(Desk& desk) {
    desk.clerk.choose(desk.kurvo.SDONEM, 1);
    must(desk.kurvo.LADSOYAD->text().isEmpty() && desk.kurvo.TABLO->rows() == 2, u"last year is not open"_s);
    desk.pick(502, u"CAN ATEŞ"_s);
    desk.open_attendance();
    desk.enter_hours(lesson::physics, kind::with_leave, u"1"_s);
    desk.clerk.type(desk.kurvo.MAZERET, u" Trafik"_s, Qt::Key_Return);
    desk.clerk.choose(desk.kurvo.SDONEM, 0);
    desk.pick(1030, u"ZEYNEP ŞAHİN"_s);
}

}  // namespace

Walk first_desk(Clerk& clerk) {
    const auto desk = std::make_shared<Desk>(clerk);
    const auto doing = [&](void (*act)(Desk&)) { return [desk, act] { act(*desk); }; };
    return {{u"acildi"_s, {}, &Desk::meet},
            {u"otomatik-plan"_s, {}, doing(enter_student_with_automatic_plan)},
            {u"elle-plan"_s, {}, doing(enter_student_with_plan_by_hand)},
            {u"kayitlar-bitti"_s, {}, &Desk::meet},
            {u"tahsilatlar"_s, {}, doing(collect)},
            {u"tahsilatlar-bitti"_s, {}, &Desk::meet},
            {u"ayni-taksit"_s, {}, doing(take_from_shared_instalment)},
            {u"ikisi-hazir"_s, {}, &Desk::meet},
            {u"ayni-anda"_s, {}, [desk] { desk->post(); }},
            {u"devamsizlik"_s, {}, doing(enter_absences_of_class)},
            {u"zorunlu-etud"_s, {}, doing(enter_other_absences)},
            {u"not"_s, {}, doing(write_note)},
            {u"etudler-bitti"_s, {}, &Desk::meet},
            {u"numara"_s, {}, doing(renumber)},
            {u"donem"_s, {}, doing(go_to_last_year_and_back)},
            {u"is-bitti"_s, {}, &Desk::meet},
            {u"kapanis"_s, {}, [desk] { desk->close_program(); }}};
}
