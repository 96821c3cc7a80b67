#include "platform/prompt.h"

#include "platform/slots.h"
#include "support/run_all.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <stdexcept>
#ifdef Q_OS_UNIX
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

// Presses a key in the box as soon as there is one.
class Person : public QTimer {
public:
    explicit Person(Qt::Key key) {
        callOnTimeout([this, key] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr || !box->isVisible()) return;
            stop();
            const auto* message = qobject_cast<QMessageBox*>(box);
            for (const QAbstractButton* button : message->buttons()) buttons += button->text();
            title = message->windowTitle();
            QTest::keyClick(box->focusWidget() != nullptr ? box->focusWidget() : box, key);
        });
        start(1);
    }

    QStringList buttons;
    QString title;
};

}  // namespace

class PromptTest : public QObject {
    Q_OBJECT

private slots:
    void keys_answer() {
        for (const auto& [key, answer] : {std::pair(Qt::Key_Return, true), {Qt::Key_Escape, false}}) {
            Person person(key);
            QCOMPARE(prompt::ask("Kayıt silinsin mi?", "Dikkat"), answer);
            QCOMPARE(person.title, "Dikkat");
            person.buttons.sort();
            QCOMPARE(person.buttons, QStringList({"Tamam", "İptal"}));
            Person reader(key);
            prompt::tell("<b>Bitti</b>");
            QCOMPARE(reader.buttons, QStringList("Tamam"));
        }
    }

    void program_ends_once() {
#ifdef Q_OS_UNIX
        const pid_t child = fork();
        if (child == 0) {
            // A second error while the first one's box waits for its Enter.
            Person person(Qt::Key_Return);
            QTimer::singleShot(0, [] { fatal::guard([] { throw std::runtime_error("ikinci"); }); });
            QPushButton button;
            on(&button, &QPushButton::clicked, this, [] { throw std::runtime_error("birinci"); });
            button.click();
            _exit(77);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 1);
#else
        QSKIP("needs fork");
#endif
    }
};

static const Registered<PromptTest> registered;
#include "prompt_test.moc"
