// kurvo-bench [PART OF A ROW'S NAME]: prints what the program takes for its acts beside the least they could take.
// kurvo-bench growth: prints how they grow with the number of students.
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
        const std::string chosen = argc > 1 ? argv[1] : "";
        const QString build_folder = QApplication::applicationDirPath() + QStringLiteral("/..");
        if (chosen == "growth") {
            bench::measure_growth(build_folder);
            return 0;
        }
        bench::Table table(chosen);
        const bench::BigSchool school(build_folder);
        for (const auto measure : {bench::measure_store, bench::measure_list, bench::measure_card, bench::measure_start,
                                   bench::measure_posting, bench::measure_search, bench::measure_record_form,
                                   bench::measure_renumbering, bench::measure_rich_text, bench::measure_dossier,
                                   bench::measure_import, bench::measure_peers, bench::measure_panels,
                                   bench::measure_server})
            measure(table, school);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
