#include "overview/notes.h"

#include "platform/clock.h"
#include "platform/color_choice.h"
#include "platform/prompt.h"
#include "platform/rich_text.h"
#include "platform/slots.h"

namespace {

const QString blank = QStringLiteral(" ");

}  // namespace

Notes::Notes(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {
    on(kurvo_.CommandNOT, &QPushButton::clicked, this, [this] { CommandNOT_Click(); });
    on(kurvo_.CommandTARIHEKLE, &QPushButton::clicked, this, [this] { CommandTARIHEKLE_Click(); });
    on(kurvo_.CommandSAATEKLE, &QPushButton::clicked, this, [this] { CommandSAATEKLE_Click(); });
    on(kurvo_.CommandNot_EKLE, &QPushButton::clicked, this, [this] { CommandNot_EKLE_Click(); });
    connect_formatting();
}

// Only a choice of the clerk counts: the boxes and lists stay as they are when the caret moves or a note is shown.
void Notes::connect_formatting() {
    on(kurvo_.CheckBold, &QCheckBox::clicked, this, [this](bool ticked) {
        QTextCharFormat format;
        format.setFontWeight(ticked ? QFont::Bold : QFont::Normal);
        format_selection(format);
    });
    on(kurvo_.CheckItalic, &QCheckBox::clicked, this, [this](bool ticked) {
        QTextCharFormat format;
        format.setFontItalic(ticked);
        format_selection(format);
    });
    on(kurvo_.CheckUnderline, &QCheckBox::clicked, this, [this](bool ticked) {
        QTextCharFormat format;
        format.setFontUnderline(ticked);
        format_selection(format);
    });
    on(kurvo_.ComboFont, &QComboBox::activated, this, [this] {
        QTextCharFormat format;
        format.setFontFamilies({kurvo_.ComboFont->currentText()});
        format_selection(format);
    });
    on(kurvo_.ComboSize, &QComboBox::activated, this, [this] {
        QTextCharFormat format;
        format.setFontPointSize(kurvo_.ComboSize->currentText().toInt());
        format_selection(format);
    });
    on(kurvo_.CommandRenk, &QPushButton::clicked, this, [this] { CommandRenk_Click(); });
}

void Notes::show_note() {
    rich_text::load(session_.studentTable["NOT"].text(), *kurvo_.Text1);
}

void Notes::CommandNOT_Click() {
    if (!session_.studentSelected) return;
    kurvo_.panel_goster(Kurvo::Panel::Not);
    const QDateTime now = clock_source::now();
    kurvo_.TARIH->setDate(now.date());
    kurvo_.SAAT->setText(dates::short_time(now.time()));
    kurvo_.Text1->setFocus();
}

void Notes::CommandTARIHEKLE_Click() {
    kurvo_.Text1->insertPlainText(dates::shown(kurvo_.TARIH->date()) + blank);
}

void Notes::CommandSAATEKLE_Click() {
    kurvo_.Text1->insertPlainText(kurvo_.SAAT->text() + blank);
}

void Notes::format_selection(const QTextCharFormat& format) {
    kurvo_.Text1->mergeCurrentCharFormat(format);
    kurvo_.Text1->setFocus();
}

void Notes::CommandRenk_Click() {
    QTextCharFormat format;
    if (const QColor color = color_choice::pick(selection_color()); color.isValid()) format.setForeground(color);
    format_selection(format);
}

// That of its first letter; a letter without a colour of its own has that of the box.
QColor Notes::selection_color() const {
    QTextCursor first = kurvo_.Text1->textCursor();
    if (first.hasSelection()) first.setPosition(first.selectionStart() + 1);
    const QBrush brush = first.charFormat().foreground();
    return brush.style() == Qt::NoBrush ? kurvo_.Text1->palette().color(QPalette::Text) : brush.color();
}

void Notes::CommandNot_EKLE_Click() {
    if (!session_.card_is_of(kurvo_.LONO->text())) return;
    const bool is_empty = kurvo_.Text1->document()->isEmpty();
    if (is_empty) kurvo_.Text1->insertPlainText(blank);
    const QString note = is_empty ? blank : rich_text::save(*kurvo_.Text1->document());
    // Other work on the table may have moved it off the student of the card.
    session_.studentTable.Seek("=", {session_.shownStudent});
    session_.studentTable.Edit();
    session_.studentTable["NOT"] = note;
    session_.studentTable.Update();
    prompt::tell(QStringLiteral("Kaydedildi."), QString());
    rich_text::load(note, *kurvo_.FToplu_Text1);
    kurvo_.Text1->setFocus();
}
