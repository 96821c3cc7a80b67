#include "paper_desk.h"

#include "fees/plan_grid.h"

using namespace Qt::StringLiterals;

PaperDesk::PaperDesk()
    : clock_([] { return QDateTime(QDate(2026, 11, 24), QTime(9, 30)); }),
      notes(form, session),
      contract(form, session) {
    qputenv("KURVO_PRINTER", "pdf:" + drives_.path(u"papers"_s).toUtf8());
    PrintSurface::set_observer([this](const PrintSurface::Document& paper) { papers.push_back(paper); });
    QDir().mkpath(drives_.path(u"c/okul/data"_s));
    session.dataRoot = u"c:\\okul\\"_s;
    session.schoolName = u"ÖZEL IŞIK"_s;
    session.noteOffsetX = u"500"_s;
    session.noteOffsetY = u"200"_s;
    session.noteHeight = u"4200"_s;
    session.lineThickness = u"2"_s;
    form.ONO->setText(u"1250"_s);
    form.VELI->setText(u"OYA YILDIRIM"_s);
    form.VTCNO->setText(u"12345678901"_s);
    form.ADRES1->setText(u"Çınar Mah. 5"_s);
    form.ADRES2->setText(u"Daire 3"_s);
    form.AILCE->setText(u"Nilüfer"_s);
    form.AIL->setText(u"BURSA"_s);
}

PaperDesk::~PaperDesk() {
    PrintSurface::set_observer({});
    qunsetenv("KURVO_PRINTER");
}

void PaperDesk::instalment(const QString& date, const QString& amount, const QString& paid,
                           const QString& form_of_payment) {
    const int row = form.TABLO2->rows();
    form.TABLO2->set_rows(row + 1);
    form.TABLO2->set_row(row, {QString::number(row + 1), date, amount, form_of_payment, u"elden"_s, paid});
}
