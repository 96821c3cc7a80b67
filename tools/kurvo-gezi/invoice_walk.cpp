// The new student's guardian pays and wants an invoice on the school's own form; later an instalment more, and the
// payment plan.
#include "walk.h"

using namespace Qt::StringLiterals;

namespace {

class Invoice {
public:
    explicit Invoice(Clerk& clerk) : clerk_(clerk), kurvo_(clerk.kurvo()) {}

    void choose_instalments();
    void choose_invoice();
    void confirm_details();
    void post();
    void choose_plan();
    void post_with_plan();

private:
    void post_payments(int payments_of_day);

    Clerk& clerk_;
    Kurvo& kurvo_;
};

void Invoice::choose_instalments() {
    clerk_.press(kurvo_.CommandTAHSILAT);
    for (const int row : {0, 1}) clerk_.click_cell(*kurvo_.FTahsil_Tablo2, row, 1);
    must(kurvo_.ODENEN->text() == u"5.000", u"the two instalments are not chosen"_s);
    clerk_.press(kurvo_.CommandTAHSIL);
}

void Invoice::choose_invoice() {
    clerk_.press(kurvo_.FOP);
    must(kurvo_.FTahsil_Frame2->isVisible(), u"the invoice's details are not asked for"_s);
    must(!kurvo_.CommandOK->isVisible(), u"the posting does not wait for the details"_s);
    clerk_.type(kurvo_.fVD, u"NİLÜFER"_s);
    clerk_.type(kurvo_.fVN, u"1234567890"_s);
}

void Invoice::confirm_details() {
    clerk_.press(kurvo_.CommandOK2);
    must(!kurvo_.FTahsil_Frame2->isVisible() && kurvo_.CommandOK->isVisible(), u"the details are not confirmed"_s);
    must(kurvo_.FTahsil_BNO->hasFocus(), u"the document number does not wait"_s);
}

void Invoice::post_payments(int payments_of_day) {
    const qsizetype papers_before = clerk_.papers().size();
    clerk_.press(kurvo_.CommandOK);
    must(clerk_.papers().size() == papers_before + 1, u"the paper was not printed"_s);
    must(clerk_.office().payments_of_today(kurvo_.LONO->text().toInt()) == payments_of_day,
         u"not %1 payments are stored"_s.arg(payments_of_day));
}

void Invoice::post() {
    post_payments(2);
}

void Invoice::choose_plan() {
    clerk_.click_cell(*kurvo_.FTahsil_Tablo2, 0, 1);
    clerk_.press(kurvo_.CommandTAHSIL);
    clerk_.press(kurvo_.DOP);
    must(kurvo_.DOP->isChecked() && kurvo_.FTahsil_BNO->text().isEmpty(), u"the plan is not the only paper"_s);
}

void Invoice::post_with_plan() {
    post_payments(3);
    must(clerk_.papers().last().startsWith(u"Ödeme_Planı"), u"the paper is no payment plan"_s);
}

}  // namespace

Walk invoice_walk(Clerk& clerk) {
    const auto doing = steps_of(std::make_shared<Invoice>(clerk));
    const std::vector<QSize> one{screens::small};
    return {{u"iki-taksit"_s, {}, doing(&Invoice::choose_instalments)},
            {u"fatura-bilgileri"_s, one, doing(&Invoice::choose_invoice)},
            {u"fatura-onay"_s, {}, doing(&Invoice::confirm_details)},
            {u"fatura-kayit"_s, one, doing(&Invoice::post)},
            {u"odeme-plani-sec"_s, {}, doing(&Invoice::choose_plan)},
            {u"odeme-plani"_s, one, doing(&Invoice::post_with_plan)}};
}
