#include "fees/instalment_plan.h"

#include "fees/automatic_plan.h"
#include "fees/payment_forms.h"
#include "fees/plan_grid.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString attention = u"Dikkat"_s;

Money amount(store::Recordset& odeme, std::string_view field) {
    return Money::from_number(odeme[field].number());
}

QString before_blank(const QString& text) {
    return text.left(text.indexOf(u' '));
}

}  // namespace

InstalmentPlan::InstalmentPlan(KurvoYeni& form, SessionContext& session, PlanOwner owner)
    : form_(form), session_(session), owner_(std::move(owner)) {
    // Only a choice by the clerk comes as activated; clearing and loading the form do not.
    for (QComboBox* choice : {form_.BOLUM, form_.DIN})
        on(choice, &QComboBox::activated, this, [this, choice] { propose_fee(*choice); });
    on(form_.ISKONTO, &QComboBox::activated, this, [this](int item) { ISKONTO_Click(item); });
    on(form_.TABLO2, &GridView::cell_clicked, this, [this] { TABLO2_Click(); });
    on(form_.TABLO2, &GridView::cell_double_clicked, this, [this] { TABLO2_DblClick(); });
    on(form_.CommandEKLE, &QPushButton::clicked, this, [this] { CommandEKLE_Click(); });
    on(form_.CommandYARAT, &QPushButton::clicked, this, [this] { CommandYARAT_Click(); });
    on(form_.CommandEKLE3, &QPushButton::clicked, this, [this] { CommandEKLE3_Click(); });
    on(form_.CommandGERI3, &QPushButton::clicked, this, [this] { CommandGERI3_Click(); });
}

std::int64_t InstalmentPlan::student() const {
    return store::Value(form_.ONO->text()).whole_number();
}

store::Recordset InstalmentPlan::open_odeme() {
    store::Recordset odeme = session_.termDb.OpenRecordset("Odeme");
    odeme.Index("OVX");
    return odeme;
}

void InstalmentPlan::taksit_listele() {
    const QString today = dates::key(clock_source::today());
    Money borc, odenen, geciken;
    {
        GridView& grid = *form_.TABLO2;
        const GridView::Filling filling(grid);
        grid.clear();
        grid.set_rows(0);
        store::Recordset odeme = open_odeme();
        store::scan_prefix(odeme, {student()}, [&] {
            const QString vade = odeme["VADE"].text();
            const Money owed = amount(odeme, "TUTAR"), paid = amount(odeme, "ODENEN");
            const int row = grid.rows();
            grid.set_rows(row + 1);
            grid.set_row(row, {QString::number(row + 1), dates::shown(vade), numbers::picture(owed),
                               payment_form(odeme["ODSEK"].value()), odeme["ACK"].text(), numbers::plain(paid)});
            borc += owed;
            odenen += paid;
            if (vade < today) geciken += owed - paid;
        });
    }
    form_.YBORC->setText(numbers::plain(borc));
    form_.YODENEN->setText(numbers::plain(odenen));
    form_.YKALAN->setText(numbers::plain(borc - odenen));
    form_.YGECIKEN->setText(numbers::plain(geciken));
    // Without an instalment the fee may be changed again.
    if (borc == Money()) form_.KTUTAR->setEnabled(true);
    form_.TFARK->setText(numbers::picture(numbers::whole(form_.KTUTAR->text()) - borc));
}

void InstalmentPlan::propose_fee(const QComboBox& choice) {
    if (!session_.studentSelected) kayit_bedeli_getir(choice.currentText());
}

void InstalmentPlan::kayit_bedeli_getir(const QString& text) {
    store::Database reference = store::OpenDatabase(session_.reference_file());
    store::Recordset fiyat = reference.OpenRecordset("Fiyat");
    fiyat.Index("KODX");
    fiyat.Seek("=", {"1", text});
    if (fiyat.NoMatch()) return form_.KTUTAR->clear();
    // The box is read as the office types amounts, where a point would group and only a comma begins decimals.
    form_.KTUTAR->setText(fiyat["DEGER"].text().replace(u'.', u','));
}

void InstalmentPlan::ISKONTO_Click(int item) {
    form_.ISKONTO->setEditText(before_blank(form_.ISKONTO->itemText(item)));
}

void InstalmentPlan::TABLO2_Click() {
    const GridView& grid = *form_.TABLO2;
    const int row = grid.row();
    if (row < 0) return;
    form_.Sno->setText(grid.text(row, plan_grid::sno));
    form_.VADE->set_key(dates::key_of_shown(grid.text(row, plan_grid::vade)));
    form_.TUTAR->setText(numbers::plain(numbers::whole(grid.text(row, plan_grid::tutar))));
    form_.ODSEK->setCurrentText(grid.text(row, plan_grid::odsek));
    form_.ACK->setText(grid.text(row, plan_grid::ack));
    form_.VADE->setFocus();
}

void InstalmentPlan::CommandEKLE_Click() {
    if (student() <= 0 || numbers::money(form_.TUTAR->text()) <= Money()) return;
    if (form_.ADSOY->text().trimmed().isEmpty()) return prompt::tell(u"Ad soyad giriniz."_s, attention);
    switch (write_instalment()) {
        case Written::date_is_paid:
            prompt::tell(u"Ödemesi olan taksit tarihi değiştirilemez."_s);
            return form_.TUTAR->setFocus();
        case Written::below_paid:
            prompt::tell(u"Tutar Ödenenden küçük olamaz"_s);
            return form_.TUTAR->setFocus();
        case Written::yes:
            break;
    }
    store_student_if_new();
    taksit_listele();
    empty_entry_row();
}

// The date stays, for the next entry.
void InstalmentPlan::empty_entry_row() {
    form_.VADE->setFocus();
    form_.Sno->clear();
    form_.TUTAR->clear();
    form_.ACK->clear();
}

// The date of the row that Sno names; empty where it names none, and a new row is meant.
QString InstalmentPlan::date_of_edited_row() const {
    const std::int64_t number = store::Value(form_.Sno->text()).whole_number();
    if (number < 1 || number > form_.TABLO2->rows()) return {};
    return dates::key_of_shown(form_.TABLO2->text(static_cast<int>(number - 1), plan_grid::vade));
}

// A row that moves leaves its old date and comes to the new one in one commit: a refusal keeps it where it was.
InstalmentPlan::Written InstalmentPlan::write_instalment() {
    const Money tutar = numbers::money(form_.TUTAR->text());
    const QString vade = form_.VADE->key();
    const QString before = date_of_edited_row();
    store::WriteScope scope(session_.termDb);
    store::Recordset odeme = open_odeme();
    if (!before.isEmpty() && before != vade && !take_away(odeme, before)) return Written::date_is_paid;
    odeme.Seek("=", {student(), vade});
    if (odeme.NoMatch())
        add_row(odeme, vade);
    else if (tutar < amount(odeme, "ODENEN"))
        return Written::below_paid;
    else
        odeme.Edit();
    fill_row(odeme, tutar);
    scope.commit();
    return Written::yes;
}

// False for an instalment with a payment, in the grid or by another workstation since it was filled.
bool InstalmentPlan::take_away(store::Recordset& odeme, const QString& vade) {
    const int row = static_cast<int>(store::Value(form_.Sno->text()).whole_number() - 1);
    if (numbers::val(form_.TABLO2->text(row, plan_grid::odenen)) > 0) return false;
    odeme.Seek("=", {student(), vade});
    if (odeme.NoMatch()) return true;
    if (amount(odeme, "ODENEN") > Money()) return false;
    odeme.Delete();
    return true;
}

void InstalmentPlan::add_row(store::Recordset& odeme, const QString& vade) {
    odeme.AddNew();
    odeme["ONO"] = student();
    odeme["VADE"] = vade;
    odeme["ODENEN"] = 0;
}

void InstalmentPlan::fill_row(store::Recordset& odeme, Money tutar) {
    odeme["ACK"] = remark();
    odeme["TUTAR"] = tutar.number();
    odeme["ODSEK"] = form_.ODSEK->currentIndex();
    odeme["CYER"] = " ";
    odeme.Update();
}

QString InstalmentPlan::remark() {
    if (form_.ACK->text().trimmed().isEmpty()) form_.ACK->setText(u" "_s);
    return form_.ACK->text();
}

void InstalmentPlan::store_student_if_new() {
    if (!owner_.student_stored()) owner_.store_student();
}

void InstalmentPlan::CommandYARAT_Click() {
    if (student() <= 0 || form_.ADSOY->text().isEmpty()) return;
    if (numbers::money(form_.KTUTAR->text()) <= Money()) {
        prompt::tell(u"Önce kayıt bedelini giriniz."_s);
        return form_.KTUTAR->setFocus();
    }
    form_.TABLO2->setEnabled(false);
    form_.CommandEKLE->setEnabled(false);
    form_.Frame3->show();
    form_.OADET->setCurrentIndex(-1);
    form_.OADET->clearEditText();
    form_.OADET->setFocus();
}

void InstalmentPlan::CommandGERI3_Click() {
    form_.CommandEKLE->setEnabled(true);
    form_.TABLO2->setEnabled(true);
    form_.Frame3->hide();
}

void InstalmentPlan::CommandEKLE3_Click() {
    // The form may have been cleared behind the panel: nobody's plan is not written.
    if (student() <= 0) return CommandGERI3_Click();
    const bool splits = form_.OdeOpt[1]->isChecked();
    form_.ISKONTO->setEditText(before_blank(form_.ISKONTO->currentText()));
    const Money total = splits ? plan_total() : numbers::money(form_.TUTAR->text());
    const std::int64_t count = numbers::money(form_.OADET->currentText()).truncated();
    form_.TUTAR->setText(numbers::plain(total));
    form_.OADET->setEditText(QString::number(count));
    if (total <= Money() || count <= 0) {
        prompt::tell(u"Tutar ve Adet sıfır olmamalı."_s);
        return form_.OADET->setFocus();
    }
    const WaitCursor wait;
    const Money step = numbers::money(form_.YUVAR->text());
    const SplitAmounts amounts = splits ? split_amount(total, count, step) : SplitAmounts{total, total};
    form_.TUTAR->setText(numbers::plain(amounts.each));
    write_plan(amounts, count);
    store_student_if_new();
    taksit_listele();
    CommandGERI3_Click();
}

// What there is to split: the fee less the discount, without decimals.
Money InstalmentPlan::plan_total() const {
    const Money fee = numbers::whole(form_.KTUTAR->text());
    const Money discount = numbers::money(form_.ISKONTO->currentText());
    return discount > Money() ? Money::units(after_discount(fee, discount).truncated()) : fee;
}

// A date that has an instalment keeps it, and the planned amount falls away.
void InstalmentPlan::write_plan(const SplitAmounts& amounts, std::int64_t count) {
    const QStringList dates = monthly_dates(form_.VADE->date(), count);
    store::WriteScope scope(session_.termDb);
    store::Recordset odeme = open_odeme();
    for (qsizetype i = 0; i < dates.size(); ++i) {
        odeme.Seek("=", {student(), dates[i]});
        if (!odeme.NoMatch()) continue;
        add_row(odeme, dates[i]);
        fill_row(odeme, i + 1 == count ? amounts.last : amounts.each);
        scope.pause_if_due();
    }
    scope.commit();
}

void InstalmentPlan::TABLO2_DblClick() {
    const GridView& grid = *form_.TABLO2;
    const int row = grid.row();
    if (row < 0) return;
    const QString shown = grid.text(row, plan_grid::vade);
    Removed removed = Removed::paid;
    if (numbers::whole(grid.text(row, plan_grid::odenen)) == Money()) {
        if (!prompt::ask(shown + u" tarihli ödeme silinecek.  Emin misiniz?"_s, attention)) return;
        removed = remove_instalment(dates::key_of_shown(shown));
    }
    if (removed == Removed::paid) {
        prompt::tell(shown + u" Ödeme yapılan kayıt silinemez. Önce Kasadan siliniz."_s, u"D İ K K A T !"_s);
        return form_.VADE->setFocus();
    }
    if (removed == Removed::gone) return;
    taksit_listele();
    empty_entry_row();
}

// An instalment that another workstation has taken a payment on since the grid was filled counts as paid.
InstalmentPlan::Removed InstalmentPlan::remove_instalment(const QString& vade) {
    store::WriteScope scope(session_.termDb);
    store::Recordset odeme = open_odeme();
    odeme.Seek("=", {student(), vade});
    if (odeme.NoMatch()) return Removed::gone;
    if (amount(odeme, "ODENEN") > Money()) return Removed::paid;
    odeme.Delete();
    scope.commit();
    return Removed::yes;
}
