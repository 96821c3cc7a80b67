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
    const clock_source::Override clock_{[] { return QDateTime(QDate(2026, 11, 24), QTime(9, 30)); }};

public:
    PaperDesk() {
        qputenv("KURVO_PRINTER", "pdf:" + drives_.path(QStringLiteral("papers")).toUtf8());
        PrintSurface::set_observer([this](const PrintSurface::Document& paper) { papers.push_back(paper); });
        QDir().mkpath(drives_.path(QStringLiteral("c/okul/data")));
        session.dataRoot = QStringLiteral("c:\\okul\\");
        session.schoolName = QStringLiteral("ÖZEL IŞIK");
        session.noteOffsetX = QStringLiteral("500");
        session.noteOffsetY = QStringLiteral("200");
        session.noteHeight = QStringLiteral("4200");
        session.lineThickness = QStringLiteral("2");
        form.ONO->setText(QStringLiteral("1250"));
        form.VELI->setText(QStringLiteral("OYA YILDIRIM"));
        form.VTCNO->setText(QStringLiteral("12345678901"));
        form.ADRES1->setText(QStringLiteral("Çınar Mah. 5"));
        form.ADRES2->setText(QStringLiteral("Daire 3"));
        form.AILCE->setText(QStringLiteral("Nilüfer"));
        form.AIL->setText(QStringLiteral("BURSA"));
    }
    ~PaperDesk() {
        PrintSurface::set_observer({});
        qunsetenv("KURVO_PRINTER");
    }

    static constexpr char senet_file[] = "c/okul/data/Senet.txt", clauses_file[] = "c/okul/data/Sozlesme.txt";
    void put(const char* file, const QByteArray& bytes) const { drives_.put(QLatin1String(file), bytes); }
    QByteArray bytes(const char* file) const { return drives_.bytes(QLatin1String(file)); }

    // A row of TABLO2 with the remark "elden".
    void instalment(const QString& date, const QString& amount, const QString& paid = QStringLiteral("0"),
                    const QString& form_of_payment = QStringLiteral("Senet")) const {
        const int row = form.TABLO2->rows();
        form.TABLO2->set_rows(row + 1);
        form.TABLO2->set_row(row,
                             {QString::number(row + 1), date, amount, form_of_payment, QStringLiteral("elden"), paid});
    }
    const PrintSurface::Page& page(std::size_t paper = 0, std::size_t page = 0) const {
        return papers.at(paper).pages.at(page);
    }

    KurvoYeni form;
    SessionContext session;
    PromissoryNotes notes{form, session};
    Contract contract{form, session};
    prompt::Script prompts;
    std::vector<PrintSurface::Document> papers;
};
