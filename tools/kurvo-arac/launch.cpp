#include "launch.h"

#include "platform/paths.h"
#include "platform/refusal.h"
#include "platform/text_file.h"
#include "school.h"
#include "store/record.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;

namespace launch {
namespace {

// A slow share and a cold disk included.
constexpr int start_limit_ms = 30000;
constexpr int look_again_ms = 20;

void note_running_program() {
    school::create_programs_file();
    store::Database database = store::OpenDatabase(school::programs_file);
    store::Recordset programs = database.OpenRecordset("prg");
    programs.Index("PX");
    programs.Seek("=", {u"Kurvo"_s});
    if (!programs.NoMatch()) return;
    programs.AddNew();
    programs["KOD"] = u"Kurvo"_s;
    programs.Update();
}

}  // namespace

QStringList hand_over_lines(const HandOver& values) {
    const QString reserved;
    const QStringList items{values.version,
                            reserved,
                            values.root,
                            values.school,
                            reserved,
                            values.term,
                            reserved,
                            values.hide_archived,
                            reserved,
                            values.rights,
                            values.user,
                            reserved,
                            values.photos,
                            values.remote_host,
                            values.remote_database,
                            values.remote_user,
                            values.remote_password,
                            values.remote_key};
    QStringList lines;
    for (const QString& item : items) {
        if (item.contains(u'"') || item.contains(u'\n') || item.contains(u'\r'))
            refuse(u"Devir dosyasına yazılamaz (tırnak ya da satır sonu var): "_s + item);
        lines.append(text_file::quoted(item));
    }
    return lines;
}

void prepare(const HandOver& values) {
    const QStringList lines = hand_over_lines(values);
    note_running_program();
    text_file::write_lines(school::hand_over_file, lines);
}

void start(const QString& program) {
    QProcess process;
    process.setProgram(program);
    // Whoever reads our output must not wait for the end of the program's.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (!process.startDetached()) refuse(u"Kurvo başlatılamadı: "_s + QDir::toNativeSeparators(program));
    const QDeadlineTimer limit(start_limit_ms);
    while (paths::exists(school::hand_over_file)) {
        if (limit.hasExpired()) refuse(u"Kurvo açılmadı: devir dosyası alınmadı."_s);
        QThread::msleep(look_again_ms);
    }
}

}  // namespace launch
