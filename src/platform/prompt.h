// Every message box of the program. Buttons "Tamam" and "İptal".
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace prompt {

inline const QString default_title = QStringLiteral("Kurvo");

// Says something; one button.
void tell(const QString& text, const QString& title = default_title);
// Asks with the question icon; true for "Tamam".
bool ask(const QString& text, const QString& title = default_title);
// The critical box of the fatal routine.
void critical(const QString& text, const QString& title = default_title);

// Answers in place of a person, for tests: prompts must come in this order and hold the text. A prompt that
// nobody expects, or one left over at the end, is kept as a failure.
class Script {
public:
    Script();
    ~Script();
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    Script& expect(const QString& part_of_text, bool answer = true);
    // What went wrong so far, and what was not asked; empty when all came as expected.
    QStringList failures() const;
    // Title and text of each prompt that came, as "title|text".
    const QStringList& seen() const { return seen_; }

    bool answer(const QString& title, const QString& text);  // called by the prompts

private:
    struct Expected {
        QString part;
        bool answer;
    };
    std::vector<Expected> expected_;
    QStringList failures_;
    QStringList seen_;
    Script* before_;
};

}  // namespace prompt
