#include "workbook_files.h"

#include <QTemporaryDir>
#include <QtTest>

#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-output-memory.h>
#include <zip.h>

namespace workbook_files {

QByteArray package(const Parts& parts, const char* password) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("parts.zip");
    zip_t* archive = zip_open(file.toUtf8().constData(), ZIP_CREATE, nullptr);
    for (const auto& [name, content] : parts) {
        zip_source_t* source =
            zip_source_buffer(archive, content.constData(), static_cast<zip_uint64_t>(content.size()), 0);
        const auto index = static_cast<zip_uint64_t>(zip_file_add(archive, name.constData(), source, 0));
        if (password != nullptr) zip_file_set_encryption(archive, index, ZIP_EM_AES_256, password);
    }
    if (zip_close(archive) != 0) qFatal("the package cannot be written");
    QFile written(file);
    return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
}

QByteArray compound_file(const char* stream_name, const QByteArray& stream) {
    GsfOutput* memory = gsf_output_memory_new();
    GsfOutfile* compound = gsf_outfile_msole_new(memory);
    GsfOutput* child = gsf_outfile_new_child(compound, stream_name, FALSE);
    gsf_output_write(child, static_cast<std::size_t>(stream.size()), reinterpret_cast<const guint8*>(stream.data()));
    gsf_output_close(child);
    gsf_output_close(GSF_OUTPUT(compound));
    const auto* begin = reinterpret_cast<const char*>(gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memory)));
    const QByteArray bytes(begin, gsf_output_size(memory));
    for (gpointer object : {gpointer(child), gpointer(compound), gpointer(memory)}) g_object_unref(object);
    return bytes;
}

// The second sheet is the active one, and the paths begin at the root.
Parts xlsx(const QByteArray& rows) {
    return {{"[Content_Types].xml", "<Types/>"},
            {"_rels/.rels",
             "<Relationships><Relationship Id='a' Type='x/officeDocument' Target='/xl/workbook.xml'/>"
             "</Relationships>"},
            {"xl/workbook.xml",
             "<workbook xmlns:r='r'><bookViews><workbookView activeTab='1'/></bookViews><sheets>"
             "<sheet name='A' r:id='i1'/><sheet name='B' r:id='i2'/></sheets></workbook>"},
            {"xl/_rels/workbook.xml.rels",
             "<Relationships><Relationship Id='i1' Type='x/chartsheet' Target='charts/1.xml'/>"
             "<Relationship Id='i2' Type='x/worksheet' Target='sheets/../sheets/b.xml'/>"
             "<Relationship Id='i3' Type='x/sharedStrings' Target='/xl/texts.xml'/></Relationships>"},
            {"xl/texts.xml",
             "<sst><si><t>Ayşe &amp; Işıl</t></si><si><r><t xml:space='preserve'>kalın </t></r>"
             "<r><t>ince</t></r><rPh sb='0' eb='1'><t>okunuş</t></rPh></si></sst>"},
            {"xl/sheets/b.xml", "<worksheet><sheetData>" + rows + "</sheetData></worksheet>"}};
}

Parts ods(const QByteArray& tables) {
    return {{"content.xml", "<o:document xmlns:o='o' xmlns:t='t' xmlns:x='x'><o:body><o:spreadsheet>" + tables +
                                "</o:spreadsheet></o:body></o:document>"},
            {"settings.xml", "<s xmlns:c='c'><c:config-item c:name='ActiveTable'>İki</c:config-item></s>"}};
}

QByteArray record(quint16 id, const QByteArray& content) {
    return bytes_of(id, static_cast<quint16>(content.size())) + content;
}

QByteArray xls(quint16 version, const QByteArray& globals, const std::vector<QByteArray>& sheets) {
    const auto begin = [&](quint16 kind) { return record(0x0809, bytes_of(version, kind) + QByteArray(4, '\0')); };
    const auto active = static_cast<quint16>(sheets.size() - 1);
    const QByteArray head =
        begin(5) + record(0x003D, QByteArray(10, '\0') + bytes_of(active) + QByteArray(6, '\0')) + globals;
    const auto count = static_cast<qsizetype>(sheets.size());
    qsizetype place = head.size() + count * 12 + 4;
    QByteArray list, bodies;
    for (const QByteArray& sheet : sheets) {
        list +=
            record(0x0085, bytes_of(static_cast<quint32>(place + bodies.size()), quint8(0), quint8(0), quint8(0), 'A'));
        bodies += begin(0x10) + sheet + record(0x000A);
    }
    return head + list + record(0x000A) + bodies;
}

}  // namespace workbook_files
