// All that is known of a student: the note, the overview with its tabs, the dossier on paper.
#include "walk.h"

#include <QTabWidget>
#include <QTest>
#include <QTextEdit>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class StudentFile {
public:
    explicit StudentFile(Clerk& clerk) : clerk_(clerk), kurvo_(clerk.kurvo()), debtor_(clerk.office().debtor()) {}

    void write_note();
    void reload_note();
    void open_overview();
    void show_tab(int tab);
    void hold_instalment();
    void choose_sections();
    void print();

private:
    Clerk& clerk_;
    Kurvo& kurvo_;
    Office::Person debtor_;
    qsizetype papers_before_ = 0;
};

void StudentFile::write_note() {
    clerk_.type(kurvo_.LONO, QString::number(debtor_.number), Qt::Key_Return);
    clerk_.press(kurvo_.CommandNOT);
    must(kurvo_.Text1->hasFocus(), u"the note has not the focus"_s);
    QTest::keyClick(kurvo_.Text1, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(kurvo_.Text1, Qt::Key_Return);
    clerk_.press(kurvo_.CommandTARIHEKLE);
    clerk_.press(kurvo_.CommandSAATEKLE);
    kurvo_.Text1->setFocus();
    clerk_.press(kurvo_.CheckBold);
    clerk_.type_note(u"Velisiyle görüşüldü: ödev takibi isteniyor."_s);
    clerk_.prompts().expect(u"Kaydedildi."_s);
    clerk_.press(kurvo_.CommandNot_EKLE);
}

void StudentFile::reload_note() {
    const QString written = kurvo_.Text1->toPlainText();
    clerk_.key(Qt::Key_F2);
    clerk_.type(kurvo_.LONO, QString::number(debtor_.number), Qt::Key_Return);
    must(kurvo_.Text1->toPlainText() == written, u"the note does not come back"_s);
    must(kurvo_.FToplu_Text1->toHtml().contains(u"font-weight"), u"the overview's note has lost its bold"_s);
}

void StudentFile::open_overview() {
    clerk_.press(kurvo_.CommandTOPLU);
    must(kurvo_.Frame_Toplu->isVisible(), u"the overview is not shown"_s);
    must(kurvo_.FToplu_DEVAMS->rows() > 1 && kurvo_.FToplu_Tablo2->rows() > 1, u"the overview is empty"_s);
}

void StudentFile::show_tab(int tab) {
    kurvo_.SSTab1->setCurrentIndex(tab);
}

void StudentFile::hold_instalment() {
    show_tab(4);
    GridView& grid = *kurvo_.FToplu_Tablo2;
    grid.set_current(1, 0);
    const QPoint place = grid.viewport()->mapFrom(grid.parentWidget(), grid.cell_rect(1, 5).center());
    QTest::mousePress(grid.viewport(), Qt::RightButton, {}, place);
    must(kurvo_.Ftoplu_FTABLO3->isVisible(), u"the collections of the instalment are not shown"_s);
}

void StudentFile::choose_sections() {
    QTest::mouseRelease(kurvo_.FToplu_Tablo2->viewport(), Qt::RightButton);
    must(!kurvo_.Ftoplu_FTABLO3->isVisible(), u"the collections stay when the button is released"_s);
    papers_before_ = clerk_.papers().size();
    clerk_.press(kurvo_.CommandYAZF);
    must(kurvo_.FToplu_FrameYaz->isVisible() && !kurvo_.LONO->isEnabled(), u"the choice does not hold the student"_s);
}

void StudentFile::print() {
    clerk_.press(kurvo_.CommandYAZFT);
    must(!kurvo_.FToplu_FrameYaz->isVisible() && kurvo_.LONO->isEnabled(), u"the choice stays open"_s);
    must(clerk_.papers().size() == papers_before_ + 1, u"the dossier is not printed"_s);
}

}  // namespace

Walk student_file_walk(Clerk& clerk) {
    const auto file = std::make_shared<StudentFile>(clerk);
    Walk walk{
        {u"not"_s, {screens::large, screens::small}, [file] { file->write_note(); }},
        {u"not-yeniden"_s, {}, [file] { file->reload_note(); }},
        {u"toplu-devamsizlik"_s, {screens::large, screens::small}, [file] { file->open_overview(); }},
    };
    const QStringList tabs{u"zorunlu-etud"_s, u"etudler"_s, u"netler"_s, u"odemeler"_s, u"not"_s, u"sinavlar"_s};
    for (int tab = 1; tab <= tabs.size(); ++tab)
        walk.push_back({u"toplu-"_s + tabs[tab - 1], {screens::small}, [file, tab] { file->show_tab(tab); }});
    walk.push_back({u"toplu-taksit-tahsilatlari"_s, {screens::small}, [file] { file->hold_instalment(); }});
    walk.push_back({u"dosya-secimi"_s, {screens::small}, [file] { file->choose_sections(); }});
    walk.push_back({u"dosya"_s, {screens::small}, [file] { file->print(); }});
    return walk;
}
