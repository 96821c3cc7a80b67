#include "platform/color_choice.h"
#include "student_page.h"

#include <QClipboard>
#include <QMimeData>

namespace {

void choose(QComboBox* list, const QString& entry) {
    list->setCurrentText(entry);
    emit list->activated(list->currentIndex());
}

QString look_at(const QTextEdit& box, int position) {
    QTextCursor cursor(box.document());
    cursor.setPosition(position);
    const QTextCharFormat format = cursor.charFormat();
    return QStringLiteral("%1 %2 %3 %4%5%6")
        .arg(format.fontFamilies().toStringList().value(0))
        .arg(format.fontPointSize())
        .arg(format.foreground().color().name())
        .arg(format.font().bold() ? "b" : "", format.fontItalic() ? "i" : "", format.fontUnderline() ? "u" : "");
}

}  // namespace

class NotesTest : public QObject {
    Q_OBJECT

private slots:
    void formatting_survives_save_and_term_switch() {
        StudentPage page;
        page.school.student(11).set("NOT", "başka");
        page.school.student(12).set("NOT", "eski");
        page.show_student(12);
        QTextEdit& box = *page.kurvo.Text1;
        page.press(page.kurvo.CommandNOT);
        QVERIFY(box.hasFocus());
        page.press(page.kurvo.CommandTARIHEKLE);
        page.press(page.kurvo.CommandSAATEKLE);
        QCOMPARE(box.toPlainText(), "24.11.2026 09:05 eski");

        QTextCursor old = box.textCursor();
        old.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        box.setTextCursor(old);
        choose(page.kurvo.ComboFont, page.kurvo.ComboFont->itemText(0));
        choose(page.kurvo.ComboSize, "14");
        for (QCheckBox* style : {page.kurvo.CheckBold, page.kurvo.CheckItalic, page.kurvo.CheckUnderline})
            style->click();
        page.kurvo.CheckItalic->click();
        QColor start;
        const color_choice::Override choice([&](const QColor& shown) {
            start = shown;
            return QColor(0x01, 0x80, 0xFF);
        });
        page.press(page.kurvo.CommandRenk);
        page.press(page.kurvo.CommandRenk);
        QCOMPARE(start, QColor(0x01, 0x80, 0xFF));
        QVERIFY(box.hasFocus());

        page.session.studentTable.MoveFirst();  // other work has moved it
        page.prompts.expect("Kaydedildi.");
        page.press(page.kurvo.CommandNot_EKLE);
        QCOMPARE(page.prompts.seen(), QStringList("|Kaydedildi."));
        QVERIFY(page.stored_note(12).startsWith("{\\rtf") && page.stored_note(11) == "başka");
        const QString look = page.kurvo.ComboFont->itemText(0) + " 14 #0180ff bu";
        QCOMPARE(look_at(*page.kurvo.FToplu_Text1, 18), look);

        page.switch_term("2025");
        page.switch_term("2026");
        page.show_student(12);
        QCOMPARE(box.toPlainText(), "24.11.2026 09:05 eski");
        QCOMPARE(look_at(box, 18), look);
        QVERIFY(look_at(box, 17) != look);
        box.selectAll();
        page.press(page.kurvo.CommandSAATEKLE);
        QCOMPARE(box.toPlainText(), "09:05 ");
        QCOMPARE(page.prompts.failures(), QStringList());
    }

    // What the clerk sees after a paste is what comes back.
    void paste_keeps_what_is_stored() {
        StudentPage page;
        page.school.student(12).set("NOT", "önce  sonra");
        page.show_student(12);
        QTextEdit& box = *page.kurvo.Text1;
        QTextCursor caret = box.textCursor();
        caret.setPosition(5);
        box.setTextCursor(caret);
        auto* copied = new QMimeData;
        copied->setHtml(
            "<b>kalın</b> <img src='x.png'><ul><li>madde</li></ul><table><tr><td>a</td><td>b</td></tr></table>");
        QGuiApplication::clipboard()->setMimeData(copied);
        box.paste();
        QVERIFY(look_at(box, 7).endsWith("b") && box.toPlainText().startsWith("önce kalın"));
        const QString seen = box.toPlainText(), html = box.toHtml();
        QVERIFY(!html.contains("<table") && !html.contains("<img") && !html.contains("<li"));
        page.prompts.expect("Kaydedildi.");
        page.press(page.kurvo.CommandNOT);
        page.press(page.kurvo.CommandNot_EKLE);
        page.show_student(12);
        QCOMPARE(box.toPlainText(), seen);
    }

    void only_the_clerk_writes() {
        StudentPage page;
        const QString broken = "{\\rtf1{\\b kal\\'fdn{\\pict 00";
        page.school.student(11).set("NOT", "başka");
        page.school.student(12).set("NOT", broken);
        page.show_student(12);
        QTextEdit& box = *page.kurvo.Text1;
        QCOMPARE(box.toPlainText(), "kalın");
        box.insertPlainText("silinecek");
        page.show_student(11);
        box.undo();
        box.redo();
        QCOMPARE(box.toPlainText(), "başka");
        page.kurvo.LONO->setText("12");  // not the card's number
        page.press(page.kurvo.CommandNOT);
        page.press(page.kurvo.CommandNot_EKLE);
        QCOMPARE(page.stored_note(12) + page.stored_note(11), broken + "başka");

        page.show_student(11);
        box.clear();
        page.prompts.expect("Kaydedildi.");
        page.press(page.kurvo.CommandNot_EKLE);
        QCOMPARE(page.stored_note(11), " ");
        QCOMPARE(box.toPlainText() + page.kurvo.FToplu_Text1->toPlainText(), "  ");
        QCOMPARE(page.prompts.failures(), QStringList());
    }
};

static const Registered<NotesTest> registered;
#include "notes_test.moc"
