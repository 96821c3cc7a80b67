// What CommandOK does: a collection becomes rows of the tables and a paper.
#pragma once

#include "forms/kurvo.h"
#include "platform/money.h"
#include "session/context.h"

#include <QObject>

#include <functional>

class CollectionScreen;
class Statement;

// The papers of a collection beside the receipt; both are set.
struct CollectionPapers {
    std::function<void()> fatura_yaz;  // the invoice, in the form that session.print names
    std::function<void()> plan_yaz;    // the payment plan, a dossier with the payments alone
};

// Writes in this order, each item committed by itself: the document number, the row of the cash book, and for
// each instalment its payment together with what is paid on it. What was written before a failure stays.
class Posting : public QObject {
    Q_OBJECT

public:
    // All must outlive it.
    Posting(Kurvo& kurvo, SessionContext& session, Statement& statement, CollectionScreen& screen,
            CollectionPapers papers);

    // Nothing happens while no student is on the card, while LONO holds another number than the card's, or
    // while ODENEN is not above 0.
    void CommandOK_Click();

private:
    void store_collection();
    void move_series(store::Database& reference);
    QString add_kasa_row(store::Database& reference, const QString& tarih);
    void add_payments(const QString& tarih, const QString& ksaat);
    void print_document();
    static void print(const QString& name, const std::function<void()>& paper);

    Kurvo& kurvo_;
    SessionContext& session_;
    Statement& statement_;
    CollectionScreen& screen_;
    CollectionPapers papers_;
    Money last_posting_;  // the amount that the papers show
};
