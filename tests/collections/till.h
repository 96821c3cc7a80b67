// A workstation that takes payments: the form with the handlers of collections, on a school of its own.
#pragma once

#include "collections/collection_screen.h"
#include "collections/posting.h"
#include "collections/statement.h"
#include "platform/print_surface.h"
#include "session/terms.h"

#include <QTemporaryDir>

#include <string_view>
#include <vector>

// The files of one term in a temporary folder of drives. What a handler throws and what is printed is kept.
class TillFiles {
    QTemporaryDir folder_;

public:
    TillFiles();
    ~TillFiles();

    static const QString term_file, reference_file;
    static constexpr int student = 1250;

    using Row = std::initializer_list<std::pair<std::string_view, store::Value>>;
    static void add(const QString& file, std::string_view table, Row fields);
    static void instalment(const QString& vade, double tutar, double odenen = 0, int ono = student);
    // Each row of the table, its fields joined by "|", in key order.
    static QStringList rows(const QString& file, std::string_view table,
                            std::initializer_list<std::string_view> fields);
    static QStringList odeme() { return rows(term_file, "Odeme", {"ONO", "VADE", "ODENEN"}); }
    static QStringList tahsilat() { return rows(term_file, "Tahsilat", {"ONO", "VADE", "TARIH", "SAAT", "ODENEN"}); }

    QStringList failures;
    std::vector<PrintSurface::Document> papers;
};

class Till {
public:
    explicit Till(CollectionPapers papers = {});

    Kurvo kurvo;
    SessionContext session;
    Terms terms;
    Statement statement;
    CollectionScreen screen;
    Posting posting;

    // What the card does with a number on file.
    void pick(int number = TillFiles::student);
    // Into ODENEN, in place of what stands there; "<" is Backspace.
    void type_amount(const QString& keys) { type(kurvo.ODENEN, keys); }
    void click_row(int row) { click_cell(*kurvo.FTahsil_Tablo2, row, 1); }
    // The first stage's rows: "X" and the amount, or nothing.
    QStringList marks() const;
    void begin_second_stage() { press(kurvo.CommandTAHSIL); }
    void correct(int row, const QString& keys);
    void press(QAbstractButton* button);
    // All of a collection; no option for none.
    void collect(const QString& amount, QRadioButton* option);

private:
    void type(QLineEdit* box, const QString& keys);
    static void click_cell(GridView& grid, int row, int column);
};
