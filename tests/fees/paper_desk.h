// The record form with its papers, for a student with a plan on the screen; what is printed is kept.
#pragma once

#include "fees/contract.h"
#include "fees/promissory_notes.h"
#include "platform/clock.h"
#include "platform/grid_view.h"
#include "platform/print_surface.h"
#include "platform/prompt.h"
#include "support/drives.h"

#include <vector>

class PaperDesk {
    Drives drives_;
    const clock_source::Override clock_;  // 24 November 2026

public:
    PaperDesk();
    ~PaperDesk();

    static constexpr char senet_file[] = "c/okul/data/Senet.txt", clauses_file[] = "c/okul/data/Sozlesme.txt";
    void put(const char* file, const QByteArray& bytes) const { drives_.put(QLatin1String(file), bytes); }
    QByteArray bytes(const char* file) const { return drives_.bytes(QLatin1String(file)); }

    // A row of TABLO2 with the remark "elden".
    void instalment(const QString& date, const QString& amount, const QString& paid = QStringLiteral("0"),
                    const QString& form_of_payment = QStringLiteral("Senet"));
    const PrintSurface::Page& page(std::size_t paper = 0, std::size_t page = 0) const {
        return papers.at(paper).pages.at(page);
    }

    KurvoYeni form;
    SessionContext session;
    PromissoryNotes notes;
    Contract contract;
    prompt::Script prompts;
    std::vector<PrintSurface::Document> papers;
};
