// The new student gets another number, and all that is stored of her comes along.
#include "walk.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int new_number = 2026;

class NewNumber {
public:
    explicit NewNumber(Clerk& clerk) : clerk_(clerk), kurvo_(clerk.kurvo()) {}

    void refuse_number_in_use();
    void type_free_number();
    void renumber();
    void close();

private:
    KurvoYeni& form() { return clerk_.record_form(); }

    Clerk& clerk_;
    Kurvo& kurvo_;
    QString name_;
    int former_number_ = 0, payments_ = 0;
};

void NewNumber::refuse_number_in_use() {
    former_number_ = kurvo_.LONO->text().toInt();
    name_ = kurvo_.LADSOYAD->text();
    payments_ = clerk_.office().payments_of_today(former_number_);
    clerk_.press(kurvo_.CommandYENI);
    clerk_.press(form().CommandNODGS);
    must(form().FrameNODGS->isVisible() && form().YENINO->hasFocus(), u"the new number is not asked for"_s);
    clerk_.type(form().YENINO, QString::number(clerk_.office().debtor().number));
    clerk_.prompts().expect(u"Bu numarada bir öğrenci kayıtlı."_s);
    clerk_.press(form().CommandNODEGISTIR);
    must(form().FrameNODGS->isVisible(), u"a number in use ends the panel"_s);
}

void NewNumber::type_free_number() {
    clerk_.type(form().YENINO, QString::number(new_number));
}

void NewNumber::renumber() {
    clerk_.press(form().CommandNODEGISTIR);
    const Office& office = clerk_.office();
    must(!form().FrameNODGS->isVisible() && form().ONO->text().toInt() == new_number,
         u"the form does not show the new number"_s);
    must(office.payments_of_today(new_number) == payments_ && office.payments_of_today(former_number_) == 0,
         u"the payments did not come along"_s);
    const QStringList cash = office.cash_lines_of_today();
    const auto names = [&](int number) {
        return std::ranges::count_if(cash, [&](const QString& line) { return line.startsWith(u"%1 "_s.arg(number)); });
    };
    must(names(new_number) > 0 && names(former_number_) == 0, u"the cash book names the former number"_s);
}

void NewNumber::close() {
    form().close();
    must(kurvo_.LONO->text().toInt() == new_number && kurvo_.LADSOYAD->text() == name_,
         u"the card does not show the student under the new number"_s);
}

}  // namespace

Walk renumbering_walk(Clerk& clerk) {
    const auto doing = steps_of(std::make_shared<NewNumber>(clerk));
    return {{u"numara-dolu"_s, {}, doing(&NewNumber::refuse_number_in_use)},
            {u"numara-degistir"_s, {screens::small}, doing(&NewNumber::type_free_number)},
            {u"numara-degisti"_s, {}, doing(&NewNumber::renumber)},
            {u"yeni-numara-kartta"_s, {}, doing(&NewNumber::close)}};
}
