// The rows of a payment in the term's tables, and the free clock time that names a row.
#pragma once

#include "platform/clock.h"
#include "platform/money.h"
#include "store/record.h"

#include <QString>
#include <QThread>

// Draws the clock's time (HHMMSS) until `taken` says that no row has it, and runs `write` with it; returns the
// time. Seek and row are one commit, so that two workstations in the same second cannot collide; two at different
// nodes of a cluster can, and the later one draws again. Between two draws the file is free and the processor too.
template <typename Taken, typename Write>
QString write_at_free_time(store::Database& database, Taken taken, Write write) {
    constexpr unsigned long pause_ms = 10;
    constexpr int most_collisions = 20;
    for (int collisions = 0;; QThread::msleep(pause_ms)) {
        try {
            store::WriteScope scope(database);
            const QString time = dates::time_key(clock_source::now().time());
            if (taken(time)) continue;
            write(time);
            scope.commit();
            return time;
        } catch (const std::system_error& failure) {
            if (failure.code() != store::Errc::duplicate_key || ++collisions > most_collisions) throw;
        }
    }
}

// One payment on one instalment.
struct Payment {
    std::int64_t ono = 0;
    QString vade, tarih, ksaat;
    Money odenen;
    QString kasafno;
    QString document;  // the number as typed; blank for none
    bool is_receipt = false;
};

class PaymentRows {
public:
    // The term's database must outlive it.
    explicit PaymentRows(store::Database& term);

    // Adds the row to Tahsilat and raises ODENEN of its instalment in Odeme, both in one commit: the payments of
    // an instalment always add up to what is paid on it. Without the instalment the payment alone is stored.
    void add(const Payment& payment);

private:
    void add_tahsilat(const Payment& payment, const QString& saat);
    void raise_odeme(const Payment& payment);

    store::Database& term_;
    store::Recordset tahsilat_;
    store::Recordset odeme_;
};
