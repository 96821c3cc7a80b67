#include "session/parameter_files.h"

#include "known_session.h"
#include "support/refusal.h"
#include "support/run_all.h"

#include <tuple>

namespace {

const QString prmt = QStringLiteral("c/okul/data/Prmt.txt");
const QString fatura = QStringLiteral("c/okul/data/Fatura.txt");
const QString kasa_tip = QStringLiteral("c/okul/data/KasaTip.txt");

const QByteArray letter_codes = "208\r\n240\r\n220\r\n252\r\n222\r\n254\r\n221\r\n253\r\n214\r\n246\r\n199\r\n231\r\n";

QByteArray layout(int items) {
    QByteArray lines;
    for (int i = 0; i < items; ++i) lines += "\"F" + QByteArray::number(i) + "\",1,2,3\r\n";
    return lines;
}

}  // namespace

class ParameterFilesTest : public QObject {
    Q_OBJECT

private slots:
    void missing_files_are_made() {
        const School school;
        SessionContext session = known_session(school);
        parameter_files::read_prmt(session);
        QCOMPARE(school.drives.bytes(prmt),
                 QByteArray("\"Senet Yatay\",500,\"Senet Dikey\",200,\"Senet Y\xFCkseklik\",4200,\"\",1,\"\",1,\"\",18,"
                            "\"\xC7izgi Kal\xFDnl\xFD\xF0\xFD\",1\r\n"));
        QCOMPARE(session.noteHeight + ' ' + session.lineThickness, "4200 1");
        parameter_files::read_fatura(session);
        QCOMPARE(
            school.drives.bytes(fatura),
            QByteArray("\"Yaz\xFD\x63\xFD tipi\",0,0,0,0\r\n\"208\"\r\n\"240\"\r\n\"220\"\r\n\"252\"\r\n\"222\"\r\n"
                       "\"254\"\r\n\"221\"\r\n\"253\"\r\n\"214\"\r\n\"246\"\r\n\"199\"\r\n\"231\"\r\n"));
        QCOMPARE(session.print.layoutCount, 0);
        // The cash types are the office's own to write.
        QCOMPARE(parameter_files::read_kasa_tip(session), QStringList{" "});
        QVERIFY(!QFile::exists(school.drives.path(kasa_tip)));
    }

    void positions_count_and_texts_stay() {
        const School school;
        SessionContext session = known_session(school);
        school.drives.put(prmt, "x,0500\r\n\"y\",\"20 mm\"\r\nz, 4200.5 ,\"\",\"\",\"\",\"\",\"\",\"\",500,2\r\n");
        parameter_files::read_prmt(session);
        QCOMPARE((QStringList{session.noteOffsetX, session.noteOffsetY, session.noteHeight, session.lineThickness}),
                 (QStringList{"0500", "20 mm", "4200.5", "2"}));
        school.drives.put(kasa_tip, "TL\r\nAlt\xFDn, gram\r\n \"USD\" ");
        QCOMPARE(parameter_files::read_kasa_tip(session), (QStringList{"TL", "Altın, gram", " \"USD\" "}));

        school.drives.put(fatura, "\"Yaz\xFD\x63\xFD\",1,\"3\",1,18\r\n166,167\r\n" + letter_codes.mid(10) +
                                      "\"ADSOY\",5,10,0\r\n\"TARIH\",6\r\n60,\"\"\r\n\r\n\r\n");
        parameter_files::read_fatura(session);
        const PrintSettings& print = session.print;
        QVERIFY(print.OptPrn == 1 && print.KDVc == 1 && print.layoutCount == 2);
        QCOMPARE((QStringList{print.KSAY, print.KDVZ, print.krk[0], print.krk[1], print.krk[2], print.krk[11]}),
                 (QStringList{"3", "18", "166", "167", "220", "231"}));
        QCOMPARE(print.flbl[0] + print.yy[0] + ',' + print.xx[0] + ',' + print.aa[0], " ADSOY5,10,0");
        QCOMPARE(print.flbl[1] + print.yy[1] + ',' + print.xx[1] + ',' + print.aa[1], " TARIH6,60,");
    }

    void broken_file_names_what_is_missing() {
        const QByteArray head = "\"\",0,1,0,18\r\n";
        const std::tuple<QString, QByteArray, QString> files[]{
            {prmt, "", "2. değer (Senet Yatay) eksik"},
            {kasa_tip, "", "1. satır"},
            {fatura, "\"\",0,1,0\r\n", "5. değer (KDV oranı) eksik"},
            {fatura, "\"\",0,iki,0,0\r\n", "\"iki\""},
            {fatura, "\"\",0,1,0,101\r\n", "0 ile 100"},
            {fatura, head + letter_codes + "\"0\",1\r\nx,1\r\n", "15. satır: 20. değer (alanın sütunu)"},
            {fatura, head + "256\r\n" + letter_codes.mid(5), "2. satır: 6. değer (Ğ harfinin kodu) 0 ile 255"},
            {fatura, head + letter_codes + layout(17), "30. satır: 81. değerden sonrası fazla; en çok 16"}};
        for (const auto& [file, content, words] : files) {
            const School school;
            school.drives.put(file, content);
            SessionContext session = known_session(school);
            const QString said = refusal([&] {
                parameter_files::read_prmt(session);
                parameter_files::read_kasa_tip(session);
                parameter_files::read_fatura(session);
            });
            QVERIFY2(said.contains(file.section('/', -1)) && said.contains(words), qPrintable(said));
            QCOMPARE(school.drives.bytes(file), content);
        }
    }
};

static const Registered<ParameterFilesTest> registered;
#include "parameter_files_test.moc"
