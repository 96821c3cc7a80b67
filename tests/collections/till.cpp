#include "till.h"

#include "platform/slots.h"
#include "session/panel_setup.h"

#include <QTest>

TillFiles::TillFiles() {
    qputenv("KURVO_PRINTER", "pdf:" + drives.path("papers").toUtf8());
    fatal::set_handler([this](const std::exception& error) { failures << QString::fromUtf8(error.what()); });
    PrintSurface::set_observer([this](const PrintSurface::Document& paper) { papers.push_back(paper); });
}

TillFiles::~TillFiles() {
    fatal::set_handler({});
    PrintSurface::set_observer({});
    qunsetenv("KURVO_PRINTER");
}

void TillFiles::instalment(const QString& vade, double tutar, double odenen, int ono) const {
    add("Odeme", {{"ONO", ono},
                  {"VADE", vade},
                  {"TUTAR", tutar},
                  {"ODENEN", odenen},
                  {"ACK", " "},
                  {"ODSEK", 2},
                  {"CYER", " "}});
}

Till::Till(CollectionPapers papers)
    : terms(kurvo, session),
      statement(kurvo, session),
      screen(kurvo, session, terms),
      posting(kurvo, session, statement, screen, std::move(papers)) {
    // What start-up leaves for a user with the right to collect.
    session.dataRoot = QStringLiteral("c:\\okul\\");
    session.termCode = QStringLiteral("2026");
    session.schoolName = QStringLiteral("ÖZEL IŞIK");
    session.lineThickness = QStringLiteral("2");
    session.forceTodayOnPosting = QStringLiteral("0");
    session.collectionsAllowed = 1;
    kurvo.CommandTAHSILAT->show();
    kurvo.ComboKASATIP->addItems({QStringLiteral("TL"), QStringLiteral("EURO")});
    kurvo.SDONEM->addItem(session.termCode);
    set_up_list(kurvo);
    set_up_panels(kurvo, session);
    terms.open();
    kurvo.show();
    if (!QTest::qWaitForWindowActive(&kurvo)) qFatal("the form does not come up");
}

void Till::pick() {
    kurvo.LONO->setText(QString::number(TillFiles::payer));
    kurvo.LADSOYAD->setText(QStringLiteral("AYŞE NUR YILDIRIM"));
    session.studentSelected = true;
    session.shownStudent = TillFiles::payer;
    statement.odeme_durumu();
    press(kurvo.CommandTAHSILAT);
}

void Till::type(QLineEdit* box, const QString& keys) {
    kurvo.activateWindow();
    if (!QTest::qWaitForWindowActive(&kurvo)) qFatal("the form does not come up");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, keys);
}

QStringList Till::marks() const {
    QStringList all;
    for (int row = 0; row < kurvo.FTahsil_Tablo2->rows(); ++row)
        all << kurvo.FTahsil_Tablo2->text(row, 0).trimmed() + kurvo.FTahsil_Tablo2->text(row, 6);
    return all;
}

void Till::correct(int row, const QString& keys) {
    click_cell(*kurvo.FTahsil_TABLO4, row, 4);
    type(kurvo.Cel_In, keys);
}

void Till::press(QAbstractButton* button) {
    QTest::mouseClick(button, Qt::LeftButton);
}

void Till::collect(const QString& amount, QRadioButton* option) {
    type_amount(amount);
    begin_second_stage();
    if (option != nullptr) press(option);
    if (kurvo.FTahsil_Frame2->isVisible()) press(kurvo.CommandOK2);
    press(kurvo.CommandOK);
}
