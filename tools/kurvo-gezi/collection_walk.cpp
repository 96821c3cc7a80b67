// A parent comes to pay: the student is found in three ways, two instalments are paid in part, the receipt printed.
#include "platform/numbers.h"
#include "walk.h"

using namespace Qt::StringLiterals;

namespace {

class Collection {
public:
    explicit Collection(Clerk& clerk)
        : clerk_(clerk),
          kurvo_(clerk.kurvo()),
          debtor_(clerk.office().debtor()),
          open_(clerk.office().open_instalments(debtor_.number)) {}

    void starts_empty();
    void pick_by_number();
    void pick_in_list();
    void search_by_name();
    void take_hit();
    void open_panel();
    void type_amount();
    void begin_second_stage();
    void correct_cell();
    void choose_receipt();
    void post();
    void see_card();

private:
    void must_show(const Office::Person& person);
    std::int64_t debt() const;
    static std::int64_t amount(const QString& shown) { return numbers::whole(shown).rounded(); }

    Clerk& clerk_;
    Kurvo& kurvo_;
    Office::Person debtor_;
    std::vector<OpenInstalment> open_;  // before the payment
    std::int64_t first_part_ = 0, second_part_ = 0;
    std::int64_t cash_before_ = 0;
    int receipts_before_ = 0;
};

void Collection::must_show(const Office::Person& person) {
    must(kurvo_.LONO->text() == QString::number(person.number), u"the number box does not hold the number"_s);
    must(kurvo_.LADSOYAD->text().trimmed() == person.name, u"the card does not name %1"_s.arg(person.name));
}

std::int64_t Collection::debt() const {
    std::int64_t sum = 0;
    for (const OpenInstalment& instalment : open_) sum += instalment.open;
    return sum;
}

void Collection::starts_empty() {
    must(kurvo_.LADSOYAD->text().trimmed().isEmpty(), u"the card is not empty"_s);
    must(kurvo_.TABLO->rows() == static_cast<int>(clerk_.office().students().size()), u"the list is not whole"_s);
}

void Collection::pick_by_number() {
    clerk_.key(Qt::Key_F2);
    clerk_.type(kurvo_.LONO, QString::number(debtor_.number), Qt::Key_Return);
    must_show(debtor_);
    must(amount(kurvo_.TBORC->text()) == debt(), u"the debt is not %1"_s.arg(debt()));
    must(!kurvo_.Image1->pixmap().isNull(), u"the photograph is missing"_s);
}

void Collection::pick_in_list() {
    const int row = 7;
    const int number = kurvo_.TABLO->text(row, 1).toInt();
    clerk_.click_cell(*kurvo_.TABLO, row, 2);
    for (const Office::Person& person : clerk_.office().students())
        if (person.number == number) return must_show(person);
    must(false, u"the list holds a number that is not on file"_s);
}

void Collection::search_by_name() {
    clerk_.key(Qt::Key_F, Qt::ControlModifier);
    clerk_.type(kurvo_.FSBUL_soyad, debtor_.name.section(u' ', -1), Qt::Key_Return);
    must(kurvo_.TABLO_SBUL->rows() > 0, u"nobody is found"_s);
}

void Collection::take_hit() {
    const GridView& hits = *kurvo_.TABLO_SBUL;
    int row = 0;
    while (row < hits.rows() && hits.text(row, 1).toInt() != debtor_.number) ++row;
    clerk_.click_cell(*kurvo_.TABLO_SBUL, row, 2);
    must_show(debtor_);
}

void Collection::open_panel() {
    clerk_.press(kurvo_.CommandTAHSILAT);
    must(kurvo_.Frame_Tahsil->isVisible(), u"the collection panel is not shown"_s);
    must(kurvo_.FTahsil_Tablo2->rows() == static_cast<int>(open_.size()), u"not all open instalments are shown"_s);
}

// The first instalment whole and half of the next one.
void Collection::type_amount() {
    const std::int64_t wanted = open_[0].open + open_[1].open / 2;
    clerk_.type(kurvo_.ODENEN, QString::number(wanted));
    const GridView& grid = *kurvo_.FTahsil_Tablo2;
    must(amount(grid.text(0, 6)) == open_[0].open, u"the first instalment is not paid whole"_s);
    must(amount(grid.text(1, 6)) == open_[1].open / 2, u"the second instalment is not paid in part"_s);
    must(grid.text(2, 0) != u"X", u"a third instalment is marked"_s);
}

void Collection::begin_second_stage() {
    clerk_.press(kurvo_.CommandTAHSIL);
    must(kurvo_.FTahsil_Frame1->isVisible(), u"the second stage is not shown"_s);
    must(kurvo_.FTahsil_TABLO4->rows() == 3, u"not two instalments are to be paid"_s);
    must(!kurvo_.LONO->isEnabled(), u"the student can still be changed"_s);
}

void Collection::correct_cell() {
    first_part_ = open_[0].open / 2;
    second_part_ = open_[1].open / 2;
    clerk_.click_cell(*kurvo_.FTahsil_TABLO4, 1, 4);
    clerk_.type(kurvo_.Cel_In, QString::number(first_part_));
    must(amount(kurvo_.ODENEN->text()) == first_part_ + second_part_, u"the sum does not follow the correction"_s);
}

void Collection::choose_receipt() {
    clerk_.press(kurvo_.MOP);
    must(kurvo_.MOP->isChecked(), u"the receipt is not chosen"_s);
    must(numbers::val(kurvo_.FTahsil_BNO->text()) > 0, u"no number is proposed"_s);
}

void Collection::post() {
    const Office& office = clerk_.office();
    cash_before_ = office.cash_of_today();
    receipts_before_ = static_cast<int>(clerk_.papers().size());
    const int payments_before = office.payments_of_today(debtor_.number);
    clerk_.press(kurvo_.CommandOK);

    const std::int64_t paid = first_part_ + second_part_;
    must(office.cash_of_today() == cash_before_ + paid, u"the cash book does not hold the payment"_s);
    must(office.payments_of_today(debtor_.number) == payments_before + 2, u"not two payments are stored"_s);
    const std::vector<OpenInstalment> open = office.open_instalments(debtor_.number);
    must(open[0].open == open_[0].open - first_part_, u"the first instalment is not paid in part"_s);
    must(open[1].open == open_[1].open - second_part_, u"the second instalment is not paid in part"_s);
    must(clerk_.papers().size() == receipts_before_ + 1, u"no receipt was printed"_s);
    must(kurvo_.status_line->text().contains(clerk_.papers().last()), u"the status line does not tell the file"_s);
}

void Collection::see_card() {
    must_show(debtor_);
    must(amount(kurvo_.TBORC->text()) == debt() - first_part_ - second_part_, u"the debt has not gone down"_s);
    must(!kurvo_.FTahsil_Frame1->isVisible() && kurvo_.LONO->isEnabled(), u"the second stage has not ended"_s);
    must(kurvo_.ODENEN->text().isEmpty() || amount(kurvo_.ODENEN->text()) == 0, u"the amount still stands"_s);
}

}  // namespace

Walk collection_walk(Clerk& clerk) {
    const auto doing = steps_of(std::make_shared<Collection>(clerk));
    const std::vector<QSize> both{screens::large, screens::small};
    const std::vector<QSize> one{screens::small};
    return {{u"bos"_s, both, doing(&Collection::starts_empty)},
            {u"numarayla"_s, both, doing(&Collection::pick_by_number)},
            {u"listeden"_s, one, doing(&Collection::pick_in_list)},
            {u"isim-ara"_s, both, doing(&Collection::search_by_name)},
            {u"bulunan"_s, one, doing(&Collection::take_hit)},
            {u"tahsilat"_s, both, doing(&Collection::open_panel)},
            {u"tutar"_s, one, doing(&Collection::type_amount)},
            {u"ikinci-asama"_s, both, doing(&Collection::begin_second_stage)},
            {u"duzeltme"_s, one, doing(&Collection::correct_cell)},
            {u"makbuz-sec"_s, one, doing(&Collection::choose_receipt)},
            {u"kayit"_s, both, doing(&Collection::post)},
            {u"sonra"_s, {}, doing(&Collection::see_card)}};
}
