#include "desk.h"

#include "platform/cell_editor.h"

#include <QTest>

#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

void Desk::meet() {
    std::cout << "waiting" << std::endl;
    std::string line;
    must(static_cast<bool>(std::getline(std::cin, line)), u"nobody else comes"_s);
}

void Desk::pick(int student, const QString& name) {
    clerk.key(Qt::Key_F2);
    clerk.type(kurvo.LONO, QString::number(student), Qt::Key_Return);
    must(kurvo.LADSOYAD->text() == name, u"%1 is not %2 but %3"_s.arg(student).arg(name, kurvo.LADSOYAD->text()));
}

void Desk::take(const Collection& collection) {
    clerk.press(kurvo.CommandTAHSILAT);
    clerk.choose(kurvo.ComboKASATIP, collection.cash_type);
    for (const int row : collection.rows) clerk.click_cell(*kurvo.FTahsil_Tablo2, row, 1);
    if (!collection.amount.isEmpty()) clerk.type(kurvo.ODENEN, collection.amount);
    if (!collection.cash_amount.isEmpty()) clerk.type(kurvo.KASAODENEN, collection.cash_amount);
    clerk.press(kurvo.CommandTAHSIL);
    must(kurvo.FTahsil_Frame1->isVisible(), u"the second stage is not shown"_s);
    if (!collection.corrected.isEmpty()) {
        clerk.click_cell(*kurvo.FTahsil_TABLO4, 1, 4);
        clerk.type(kurvo.Cel_In, collection.corrected);
    }
    choose_paper(collection.paper);
    if (!collection.date.isEmpty()) clerk.type_date(kurvo.FTahsil_TARIH, collection.date);
    if (!collection.document.isEmpty()) clerk.type(kurvo.FTahsil_BNO, collection.document);
    if (!collection.slip.isEmpty()) clerk.type(kurvo.KFISNO, collection.slip);
}

void Desk::choose_paper(Paper paper) {
    prints_ = paper != Paper::none;
    if (paper == Paper::receipt) clerk.press(kurvo.MOP);
    if (paper == Paper::plan) clerk.press(kurvo.DOP);
    if (paper != Paper::invoice) return;
    clerk.press(kurvo.FOP);
    clerk.type(kurvo.fVD, u"NİLÜFER"_s);
    clerk.press(kurvo.CommandOK2);
}

void Desk::post() {
    const qsizetype papers = clerk.papers().size();
    clerk.press(kurvo.CommandOK);
    must(!kurvo.FTahsil_Frame1->isVisible() && kurvo.LONO->isEnabled(), u"the collection has not ended"_s);
    must_print(papers + (prints_ ? 1 : 0));
}

void Desk::must_print(qsizetype papers) {
    must(clerk.papers().size() == papers, u"%1 papers and not %2"_s.arg(clerk.papers().size()).arg(papers));
}

void Desk::open_record_form() {
    clerk.press(kurvo.CommandYENI);
    must(QTest::qWaitFor([&] { return form().isActiveWindow(); }), u"the record form is not active"_s);
}

void Desk::add_instalment(const PlanRow& row) {
    const int rows = form().TABLO2->rows();
    clerk.type_date(form().VADE, row.due);
    clerk.type(form().TUTAR, row.amount);
    clerk.choose(form().ODSEK, row.form);
    clerk.type(form().ACK, row.remark);
    const bool is_new = form().Sno->text().isEmpty();
    clerk.press(form().CommandEKLE);
    must(form().TABLO2->rows() == rows + (is_new ? 1 : 0), u"the instalment is not in the plan"_s);
}

void Desk::print_contract_and_notes() {
    const qsizetype papers = clerk.papers().size();
    clerk.press(form().CommandYAZ);
    clerk.press(form().CommandSENET);
    clerk.press(form().CommandSOK);
    must_print(papers + 2);
}

void Desk::save() {
    const QString number = form().ONO->text();
    clerk.press(form().CommandKAYDET);
    must(form().ADSOY->text().isEmpty(), u"the form was not cleared after the save"_s);
    must(kurvo.LONO->text() == number, u"the card does not show the student who was saved"_s);
}

void Desk::close_record_form() {
    form().close();
    must(kurvo.isEnabled(), u"the main form stays locked"_s);
}

void Desk::open_attendance() {
    clerk.press(kurvo.CommandDEVAMSIZLIK);
    must(kurvo.default_button() == kurvo.FDevam_CommandKAYDET, u"Enter would not save the absences"_s);
}

void Desk::enter_hours(int lesson, int kind, const QString& hours, Qt::Key then) {
    const GridView& grid = *kurvo.FDevam_Tablo2;
    if (!kurvo.FDevam_Cel_In->isVisible() || grid.row() != lesson || grid.column() != kind)
        clerk.click_cell(*kurvo.FDevam_Tablo2, lesson, kind);
    clerk.type(kurvo.FDevam_Cel_In, hours, then);
}

void Desk::print_dossier() {
    const qsizetype papers = clerk.papers().size();
    clerk.press(kurvo.CommandTOPLU);
    clerk.press(kurvo.CommandYAZF);
    clerk.press(kurvo.CommandYAZFT);
    must_print(papers + 1);
}

void Desk::close_program() {
    kurvo.close();
    must(!kurvo.isVisible(), u"the program does not close"_s);
}
