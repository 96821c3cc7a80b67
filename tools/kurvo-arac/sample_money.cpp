#include "sample_money.h"

#include "platform/clock.h"
#include "sample_lists.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace sample {
namespace {

enum Form { note_of_hand, cheque, cash, credit_card, doubtful, pursued, cancelled };

// How a student pays. The rare kinds go by the student's place, so that even a small school has them.
enum class Habit { punctual, in_parts, late, ahead, stopped };

constexpr int most_instalments = 12;
const QString none = u" "_s;

bool is_doubtful(const Student& student) {
    return student.index % 25 == 7;
}
bool is_pursued(const Student& student) {
    return student.index % 25 == 14;
}

Habit habit_of(const Student& student, Random& random) {
    if (is_doubtful(student) || is_pursued(student)) return Habit::stopped;
    const int percent = random.below(100);
    if (percent < 55) return Habit::punctual;
    if (percent < 75) return Habit::in_parts;
    return percent < 95 ? Habit::late : Habit::ahead;
}

int plan_size(const Scale& scale, Random& random) {
    static constexpr int usual[] = {1, 2, 3, 4, 5, 6, 8, 9, 9, 10, 10, 12};
    const int drawn = usual[random.below(static_cast<int>(std::size(usual)))];
    return std::clamp(scale.instalments.value_or(drawn), 1, most_instalments);
}

// The whole amounts of a plan: equal and rounded to the step, the last one takes the difference.
std::vector<int> amounts_of(int total, int count, int step) {
    int each = total / count;
    const int rest = each % step;
    each += rest * 2 > step ? step - rest : -rest;
    std::vector<int> amounts(static_cast<std::size_t>(count), each);
    amounts.back() = total - each * (count - 1);
    return amounts;
}

QDate office_day(const QDate& day) {
    return day.dayOfWeek() == Qt::Sunday ? day.addDays(1) : day;
}

int open_until(const std::vector<Instalment>& plan, std::size_t last) {
    int open = 0;
    for (std::size_t i = 0; i <= last; ++i) open += plan[i].amount - plan[i].paid;
    return open;
}

// Spreads the amount over the earliest open instalments.
std::vector<Payment> spread(std::vector<Instalment>& plan, int amount) {
    std::vector<Payment> payments;
    for (Instalment& instalment : plan) {
        const int part = std::min(amount, instalment.amount - instalment.paid);
        if (part <= 0) continue;
        instalment.paid += part;
        amount -= part;
        payments.push_back({instalment.due, part});
    }
    return payments;
}

// What comes in when instalment `due` is due; 0 for nothing.
int amount_paid(Habit habit, const std::vector<Instalment>& plan, std::size_t due, Random& random) {
    const int open = open_until(plan, due);
    switch (habit) {
        case Habit::punctual:
            return open;
        case Habit::in_parts:
            return random.chance(50) ? std::max(open - plan[due].amount / 2 / 50 * 50, 0) : open;
        case Habit::late:
            return random.chance(45) ? open : 0;
        case Habit::ahead:
            return open_until(plan, plan.size() - 1);
        case Habit::stopped:
            return due == 0 ? open / 2 : 0;
    }
    return 0;
}

// Who stopped paying has the form of what is overdue changed; who left with the debts cancelled, of what is open.
void mark_bad_debts(const Student& student, std::vector<Instalment>& plan) {
    for (Instalment& instalment : plan) {
        if (instalment.paid >= instalment.amount) continue;
        const bool overdue = instalment.due < student.last_day;
        if (student.debts_cancelled)
            instalment.form = cancelled;
        else if (overdue && is_doubtful(student))
            instalment.form = doubtful;
        else if (overdue && is_pursued(student))
            instalment.form = pursued;
    }
}

// The document and slip numbers of the collections, in the order in which they were taken.
class Documents {
public:
    explicit Documents(store::Database& reference) : series_(reference.OpenRecordset("Belgeno")) {
        series_.Index("SERIX");
        for (Series* one : {&receipts_, &invoices_}) {
            series_.Seek("=", {one->code});
            if (!series_.NoMatch()) one->last = series_["SNO"].whole_number();
        }
    }

    // "M", "F" or a blank, and the number that goes with it.
    std::pair<QString, QString> next(Random& random) {
        const int percent = random.below(100);
        if (percent >= 90) return {none, none};
        Series& one = percent < 82 ? receipts_ : invoices_;
        return {one.code, QString::number(++one.last)};
    }

    void store_last() {
        for (const Series* one : {&receipts_, &invoices_}) {
            if (one->last == 0) continue;
            series_.Seek("=", {one->code});
            if (series_.NoMatch()) {
                series_.AddNew();
                series_["SERI"] = one->code;
            } else {
                series_.Edit();
            }
            series_["SNO"] = one->last;
            series_.Update();
        }
    }

private:
    struct Series {
        QString code;
        std::int64_t last = 0;
    };
    store::Recordset series_;
    Series receipts_{u"M"_s};
    Series invoices_{u"F"_s};
};

int total_of(const Collection& collection) {
    int total = 0;
    for (const Payment& payment : collection.payments) total += payment.amount;
    return total;
}

// The first free time in the cash book from `wanted` on.
QString free_time(store::Recordset& cash_book, const QString& date, QTime wanted) {
    while (true) {
        const QString time = dates::time_key(wanted);
        cash_book.Seek("=", {date, time});
        if (cash_book.NoMatch()) return time;
        wanted = wanted.addSecs(1);
    }
}

void write_cash(store::Recordset& cash_book, const Collection& collection, const QString& date, const QString& time,
                Random& random) {
    static constexpr int euro_rate = 50;
    const QString& type = random.chance(80) ? cash_types.first() : random.pick(cash_types);
    const int total = total_of(collection);
    cash_book.AddNew();
    cash_book["TARIH"] = date;
    cash_book["SAAT"] = time;
    cash_book["ACK"] = collection.cash_text;
    cash_book["TUTAR"] = type == cash_types.last() ? std::max(total / euro_rate, 1) : total;
    cash_book["AE"] = u"+"_s;
    cash_book["KOD"] = u"1"_s;
    cash_book["TIP"] = type;
    cash_book.Update();
}

void write_payments(store::Recordset& paid, const Collection& collection, const QString& date, const QString& time,
                    const std::pair<QString, QString>& document, const QString& slip) {
    const auto& [kind, number] = document;
    const bool invoice = kind == u"F"_s;
    for (const Payment& payment : collection.payments) {
        paid.AddNew();
        paid["ONO"] = collection.student;
        paid["VADE"] = dates::key(payment.due);
        paid["TARIH"] = date;
        paid["SAAT"] = time;
        paid["ODENEN"] = payment.amount;
        paid["KSAAT"] = time;
        paid["KASAFNO"] = slip;
        paid["BTIP"] = kind;
        paid["BNO"] = number;
        paid["FTAR"] = invoice ? date : none;
        paid["FNO"] = invoice ? number : none;
        paid.Update();
    }
}

// The desk is open from nine; the collections of a day are spread over its hours.
QTime desk_time(qsizetype place, qsizetype of_day, Random& random) {
    static constexpr int open_seconds = 9 * 3600;
    const int step = open_seconds / static_cast<int>(of_day);
    if (step == 0) throw std::runtime_error("Örnek okul çok büyük: bir güne sığmayacak kadar tahsilat var.");
    return QTime(9, 0).addSecs(static_cast<int>(place) * step + random.below(step));
}

}  // namespace

std::vector<QDate> due_dates(const QDate& first, int count) {
    std::vector<QDate> result;
    for (int i = 0; i < count; ++i) {
        const QDate month = QDate(first.year(), first.month(), 1).addMonths(i);
        const int last = month.month() == 2 ? 28 : month.daysInMonth();
        result.emplace_back(month.year(), month.month(), std::min(first.day(), last));
    }
    return result;
}

std::vector<Instalment> draw_plan(const Student& student, const Scale& scale) {
    static constexpr int days[] = {1, 5, 10, 15, 20, 25, 30, 31};
    Random random = student.random.split(5);
    const int total = student.fee * (100 - student.discount) / 100;
    if (total == 0) return {};
    const QDate month = QDate(student.registered.year(), student.registered.month(), 1).addMonths(1);
    const int day = std::min(days[random.below(static_cast<int>(std::size(days)))], month.daysInMonth());
    const int form = random.chance(45) ? note_of_hand : random.between(cheque, credit_card);
    const int count = plan_size(scale, random);
    const std::vector<int> amounts = amounts_of(total, count, random.chance(50) ? 100 : 1);
    std::vector<Instalment> plan;
    for (const QDate& due : due_dates(QDate(month.year(), month.month(), day), count))
        plan.push_back({due, amounts[plan.size()], form, none, 0});
    if (count > 2 && random.chance(20)) {
        plan.front().form = cash;
        plan.front().remark = u"Peşinat"_s;
    }
    return plan;
}

std::vector<Collection> draw_collections(const Student& student, const QString& term, std::vector<Instalment>& plan) {
    Random random = student.random.split(6);
    const Habit habit = habit_of(student, random);
    // The card, from which the cash book's text is taken, shows a hidden student's name with a blank behind it.
    const QString shown_name = student.name + (student.hidden ? none : QString());
    const QString cash_text = u"%1  %2 #%3"_s.arg(QString::number(student.number), shown_name, term);
    std::vector<Collection> result;
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const QDate date = office_day(plan[i].due.addDays(random.below(7)));
        if (date > student.last_day) break;
        const int amount = amount_paid(habit, plan, i, random);
        if (amount > 0) result.push_back({date, student.number, cash_text, spread(plan, amount)});
    }
    mark_bad_debts(student, plan);
    return result;
}

void write_plan(store::Recordset& records, const Student& student, const std::vector<Instalment>& plan) {
    for (const Instalment& instalment : plan) {
        records.AddNew();
        records["ONO"] = student.number;
        records["VADE"] = dates::key(instalment.due);
        records["TUTAR"] = instalment.amount;
        records["ODENEN"] = instalment.paid;
        records["ACK"] = instalment.remark;
        records["ODSEK"] = instalment.form;
        records["CYER"] = none;
        records.Update();
    }
}

void write_collections(store::Database& reference, store::Recordset& paid, std::vector<Collection> collections,
                       Random random) {
    const auto earlier = [](const Collection& left, const Collection& right) { return left.date < right.date; };
    std::stable_sort(collections.begin(), collections.end(), earlier);
    store::Recordset cash_book = reference.OpenRecordset("Kasa");
    cash_book.Index("TSX");
    store::WriteScope scope(reference);
    Documents documents(reference);
    for (auto day = collections.begin(); day != collections.end();) {
        const auto end = std::upper_bound(day, collections.end(), *day, earlier);
        const QString date = dates::key(day->date);
        for (auto one = day; one != end; ++one) {
            const QTime wanted = desk_time(one - day, end - day, random);
            const QString time = free_time(cash_book, date, wanted);
            write_cash(cash_book, *one, date, time, random);
            const QString slip = random.chance(20) ? random.digits(4) : none;
            write_payments(paid, *one, date, time, documents.next(random), slip);
            scope.pause_if_due();
        }
        day = end;
    }
    documents.store_last();
    scope.commit();
}

}  // namespace sample
