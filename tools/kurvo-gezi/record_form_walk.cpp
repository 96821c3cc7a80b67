// A new student is entered: bus stop, fee and plan, contract and notes, saved; then a look at the transfer from another
// term.
#include "platform/numbers.h"
#include "walk.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString new_name = u"GÜLŞAH ÇİĞDEM ÖZGÜRLÜOĞLU"_s;
constexpr int instalments = 10;

// An empty line keeps the first clause clear of its frame; one that begins with a blank is printed further in.
const QStringList clauses{u""_s,
                          u"1- Kayıt, bu sözleşmenin imzalanması ve ilk taksidin ödenmesiyle kesinleşir."_s,
                          u"2- Taksitler, ödeme planındaki vadelerde kurumun veznesine ödenir."_s,
                          u"  a) Her ödeme için makbuz ya da fatura verilir."_s,
                          u"  b) Vadesinde ödenmeyen taksit veliye bildirilir."_s,
                          u"3- Ders saatlerini ve öğretmenleri kurum belirler; değişiklik bir gün önceden duyurulur."_s,
                          u"4- Öğrencinin devamsızlığı aynı gün veliye bildirilir."_s,
                          u"5- Dershaneden ayrılmak isteyen öğrencinin velisi, kuruma yazılı olarak başvurur."_s,
                          u"6- Bu sözleşme iki nüsha olarak düzenlenmiş ve imzalanmıştır."_s};

class Enrolment {
public:
    explicit Enrolment(Clerk& clerk) : clerk_(clerk), kurvo_(clerk.kurvo()) {}

    void open_on_student();
    void clear();
    void fill();
    void open_stops();
    void pick_stop();
    void open_plan_panel();
    void make_plan();
    void write_clauses();
    void print_contract();
    void open_notes();
    void print_notes();
    void save();
    void look_up_transfer();
    void close();

private:
    KurvoYeni& form() { return clerk_.record_form(); }
    void must_print(int papers);

    Clerk& clerk_;
    Kurvo& kurvo_;
    QString number_;
    int listed_before_ = 0;
    int papers_before_ = 0;
};

void Enrolment::must_print(int papers) {
    must(clerk_.papers().size() == papers_before_ + papers, u"the paper was not printed"_s);
    must(form().status_line->text().contains(clerk_.papers().last()), u"the status line does not tell the file"_s);
}

void Enrolment::open_on_student() {
    listed_before_ = kurvo_.TABLO->rows();
    clerk_.press(kurvo_.CommandYENI);
    must(form().isVisible() && !kurvo_.isEnabled(), u"the record form has not taken the main form's place"_s);
    must(QTest::qWaitFor([&] { return form().isActiveWindow(); }), u"the record form is not active"_s);
    must(form().ONO->text() == kurvo_.LONO->text(), u"the form does not open on the card's student"_s);
    must(form().ADSOY->text() == kurvo_.LADSOYAD->text().trimmed(), u"the form does not show the name"_s);
    must(form().TABLO2->rows() > 0, u"the plan is not shown"_s);
}

void Enrolment::clear() {
    clerk_.press(form().CommandTEMIZLE);
    must(form().ADSOY->text().isEmpty() && form().TABLO2->rows() == 0, u"the form is not empty"_s);
    must(form().ONO->hasFocus(), u"the number does not wait for its digits"_s);
}

void Enrolment::fill() {
    clerk_.press(form().CommandSON);
    number_ = form().ONO->text();
    must(numbers::val(number_) > 0, u"no new number was given"_s);
    clerk_.key(Qt::Key_Tab);
    must(!form().ONO->isEnabled(), u"the number is not locked"_s);
    clerk_.type(form().ADSOY, new_name);
    clerk_.type(form().TEL, u"0532 123 45 67"_s);
    clerk_.type(form().VELI, u"HÜSEYİN AVNİ ÖZGÜRLÜOĞLU"_s);
    clerk_.type(form().ADRES1, u"BAHÇELİEVLER MAH. ÇIĞIR SOK. NO:12"_s);
    clerk_.type(form().AILCE, u"NİLÜFER"_s);
    clerk_.choose(form().SNF, 2);
    clerk_.choose(form().DIN, 11);
    clerk_.type(form().KTUTAR, u"25000"_s);
}

void Enrolment::open_stops() {
    clerk_.press(form().CommandSERVISBUL);
    must(form().FrameSERVIS->isVisible() && form().TABLO->rows() > 2, u"the bus stops are not shown"_s);
}

// The second stop of the first route.
void Enrolment::pick_stop() {
    const QString route = form().TABLO->text(2, 0), stop = form().TABLO->text(2, 1);
    clerk_.click_cell(*form().TABLO, 2, 2);
    must(!form().FrameSERVIS->isVisible(), u"the bus stops stay"_s);
    must(numbers::val(stop) > 0 && form().SERVISNO->text() == route && form().DURAKNO->text() == stop,
         u"the stop is not on the form"_s);
}

void Enrolment::open_plan_panel() {
    clerk_.press(form().CommandYARAT);
    must(form().Frame3->isVisible(), u"the panel of the automatic plan is not shown"_s);
    must(form().OADET->hasFocus(), u"the count does not wait for its digits"_s);
    clerk_.press(form().OdeOpt[1]);
    clerk_.type(form().OADET->lineEdit(), QString::number(instalments));
}

void Enrolment::make_plan() {
    clerk_.press(form().CommandEKLE3);
    must(form().TABLO2->rows() == instalments, u"the plan has not its instalments"_s);
    must(form().YBORC->text() == u"25000", u"the plan is not the fee"_s);
}

void Enrolment::write_clauses() {
    clerk_.press(form().CommandSOZLESME);
    must(form().FrameSozlesme->isVisible(), u"the clauses are not shown"_s);
    clerk_.write(form().Text_Soz, clauses);
}

void Enrolment::print_contract() {
    clerk_.prompts().expect(u"Sözleşme Kaydedildi."_s);
    clerk_.press(form().CommandSave);
    clerk_.press(form().CommandGeridon);
    papers_before_ = static_cast<int>(clerk_.papers().size());
    clerk_.press(form().CommandYAZ);
    must_print(1);
}

void Enrolment::open_notes() {
    clerk_.press(form().CommandSENET);
    must(form().Frame2->isVisible(), u"the wording of the notes is not shown"_s);
    must(form().sADSOY->text() == form().VELI->text(), u"the debtor is not the guardian"_s);
}

void Enrolment::print_notes() {
    papers_before_ = static_cast<int>(clerk_.papers().size());
    clerk_.press(form().CommandSOK);
    must_print(1);
}

void Enrolment::save() {
    clerk_.press(form().CommandKAYDET);
    must(form().ADSOY->text().isEmpty(), u"the form was not cleared after the save"_s);
    must(kurvo_.TABLO->rows() == listed_before_ + 1, u"the list does not hold the new student"_s);
    must(kurvo_.LONO->text() == number_ && kurvo_.LADSOYAD->text().trimmed() == new_name,
         u"the card does not show the new student"_s);
    must(clerk_.office().open_instalments(number_.toInt()).size() == instalments, u"the plan is not on file"_s);
}

void Enrolment::look_up_transfer() {
    clerk_.press(form().CommandAL);
    must(form().Frame1->isVisible(), u"the transfer is not shown"_s);
    clerk_.type(form().FONO, number_, Qt::Key_Tab);
    must(form().YFADSOY->text() == new_name, u"the student is not found in the term"_s);
    clerk_.type(form().YONO, number_, Qt::Key_Tab);
    must(!form().YADSOY->text().isEmpty(), u"a number in use is not refused"_s);
    must(form().YONO->hasFocus(), u"the focus does not return to the number"_s);
}

void Enrolment::close() {
    clerk_.press(form().CommandTVAZGEC);
    form().close();
    must(kurvo_.isEnabled(), u"the main form stays locked"_s);
    must(kurvo_.LADSOYAD->text().trimmed() == new_name, u"the card has lost the student"_s);
}

}  // namespace

Walk record_form_walk(Clerk& clerk) {
    const auto doing = steps_of(std::make_shared<Enrolment>(clerk));
    const std::vector<QSize> both{screens::large, screens::small};
    const std::vector<QSize> one{screens::large};
    return {{u"kayit-formu"_s, both, doing(&Enrolment::open_on_student)},
            {u"kayit-formu-bos"_s, one, doing(&Enrolment::clear)},
            {u"kayit-formu-dolu"_s, one, doing(&Enrolment::fill)},
            {u"servis"_s, {screens::small}, doing(&Enrolment::open_stops)},
            {u"durak"_s, {}, doing(&Enrolment::pick_stop)},
            {u"otomatik-plan"_s, both, doing(&Enrolment::open_plan_panel)},
            {u"plan"_s, one, doing(&Enrolment::make_plan)},
            {u"sozlesme-metni"_s, {screens::small}, doing(&Enrolment::write_clauses)},
            {u"sozlesme"_s, {}, doing(&Enrolment::print_contract)},
            {u"senet-metni"_s, one, doing(&Enrolment::open_notes)},
            {u"senetler"_s, one, doing(&Enrolment::print_notes)},
            {u"kaydedildi"_s, {}, doing(&Enrolment::save)},
            {u"baska-donemden"_s, one, doing(&Enrolment::look_up_transfer)},
            {u"yeni-ogrenci-kartta"_s, {}, doing(&Enrolment::close)}};
}
