// kurvo-bench [PART OF A ROW'S NAME]: prints what the program takes for its acts beside the least they could take.
#include "benches.h"
#include "forms/look.h"
#include "platform/slots.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

QtMessageHandler other_messages = nullptr;

// The window system without a screen says of every window that it does not care for size hints.
void leave_out_size_hints(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.contains(QStringLiteral("propagateSizeHints"))) other_messages(type, context, message);
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    other_messages = qInstallMessageHandler(leave_out_size_hints);
    QApplication application(argc, argv);
    look::apply(application);
    // Nobody is there to press the button of the critical box.
    fatal::set_handler([](const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        std::_Exit(1);
    });
    try {
        bench::Table table(argc > 1 ? argv[1] : "");
        const bench::BigSchool school(QApplication::applicationDirPath() + QStringLiteral("/.."));
        for (const auto measure : {bench::measure_store, bench::measure_list, bench::measure_card, bench::measure_start,
                                   bench::measure_posting, bench::measure_search, bench::measure_record_form,
                                   bench::measure_renumbering, bench::measure_rich_text, bench::measure_dossier})
            measure(table, school);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
