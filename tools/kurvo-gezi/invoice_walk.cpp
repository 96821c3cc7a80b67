// The new student's guardian pays and wants an invoice on the school's own form.
#include "walk.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class Invoice {
public:
    explicit Invoice(Clerk& clerk) : clerk_(clerk), kurvo_(clerk.kurvo()) {}

    void choose_instalments();
    void choose_invoice();
    void confirm_details();
    void post();

private:
    Clerk& clerk_;
    Kurvo& kurvo_;
    int papers_before_ = 0;
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

void Invoice::post() {
    papers_before_ = static_cast<int>(clerk_.papers().size());
    clerk_.press(kurvo_.CommandOK);
    must(clerk_.papers().size() == papers_before_ + 1, u"no invoice was printed"_s);
    must(clerk_.office().payments_of_today(kurvo_.LONO->text().toInt()) == 2, u"not two payments are stored"_s);
}

}  // namespace

Walk invoice_walk(Clerk& clerk) {
    const auto self = std::make_shared<Invoice>(clerk);
    const auto doing = [&](void (Invoice::*act)()) { return [self, act] { (*self.*act)(); }; };
    const std::vector<QSize> one{screens::small};
    return {{u"iki-taksit"_s, {}, doing(&Invoice::choose_instalments)},
            {u"fatura-bilgileri"_s, one, doing(&Invoice::choose_invoice)},
            {u"fatura-onay"_s, {}, doing(&Invoice::confirm_details)},
            {u"fatura-kayit"_s, one, doing(&Invoice::post)}};
}
