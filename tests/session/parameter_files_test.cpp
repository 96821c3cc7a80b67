#include "session/parameter_files.h"

#include "office.h"
#include "platform/paths.h"
#include "session_tests.h"

#include <QTest>

namespace {

const QString prmt = Folders::data(QStringLiteral("Prmt.txt"));
const QString fatura = Folders::data(QStringLiteral("Fatura.txt"));
const QString kasa_tip = Folders::data(QStringLiteral("KasaTip.txt"));
const QString tak = QStringLiteral("c:\\qlm\\tak.txt");

const QByteArray letter_codes = "208\r\n240\r\n220\r\n252\r\n222\r\n254\r\n221\r\n253\r\n214\r\n246\r\n199\r\n231\r\n";

QByteArray layout(int items) {
    QByteArray lines;
    for (int i = 0; i < items; ++i) lines += "\"F" + QByteArray::number(i) + "\",1,2,3\r\n";
    return lines;
}

void read_all(SessionContext& session) {
    parameter_files::read_prmt(session);
    parameter_files::read_kasa_tip(session);
    parameter_files::read_fatura(session);
    parameter_files::read_tak(session);
}

}  // namespace

void ParameterFilesTest::missing_prmt_is_made() {
    const Folders office;
    SessionContext session = office.session();
    parameter_files::read_prmt(session);
    QCOMPARE(Folders::bytes(prmt), QByteArray("\"Senet Yatay\",500,\"Senet Dikey\",200,\"Senet Y\xFCkseklik\",4200,"
                                              "\"\",1,\"\",1,\"\",18,\"\xC7izgi Kal\xFDnl\xFD\xF0\xFD\",1\r\n"));
    QCOMPARE((QStringList{session.noteOffsetX, session.noteOffsetY, session.noteHeight, session.lineThickness}),
             (QStringList{"500", "200", "4200", "1"}));
}

void ParameterFilesTest::missing_fatura_is_made() {
    const Folders office;
    SessionContext session = office.session();
    parameter_files::read_fatura(session);
    QCOMPARE(Folders::bytes(fatura),
             QByteArray("\"Yaz\xFD"
                        "c\xFD tipi\",0,0,0,0\r\n\"208\"\r\n\"240\"\r\n\"220\"\r\n\"252\"\r\n\"222\"\r\n\"254\"\r\n"
                        "\"221\"\r\n\"253\"\r\n\"214\"\r\n\"246\"\r\n\"199\"\r\n\"231\"\r\n"));
    const PrintSettings& print = session.print;
    QCOMPARE(print.OptPrn, 0);
    QCOMPARE(print.KSAY, QStringLiteral("0"));
    QCOMPARE(print.KDVc, 0);
    QCOMPARE(print.KDVZ, QStringLiteral("0"));
    QCOMPARE(print.layoutCount, 0);
}

void ParameterFilesTest::prmt_counts_positions_and_keeps_texts() {
    const Folders office;
    Folders::write(prmt, "x,0500\r\n\"y\",\"20 mm\"\r\nz, 4200.5 ,\"\",\"\",\"\",\"\",\"\",\"\",500,2\r\n");
    SessionContext session = office.session();
    parameter_files::read_prmt(session);
    QCOMPARE((QStringList{session.noteOffsetX, session.noteOffsetY, session.noteHeight, session.lineThickness}),
             (QStringList{"0500", "20 mm", "4200.5", "2"}));
}

void ParameterFilesTest::fatura_is_read_by_groups() {
    const Folders office;
    Folders::write(fatura, "\"Yaz\xFD\x63\xFD\",1,\"3\",1,18\r\n166,167\r\n" + letter_codes.mid(10) +
                               "\"ADSOY\",5,10,0\r\n\"TARIH\",6\r\n60,\"\"\r\n\r\n\r\n");
    SessionContext session = office.session();
    parameter_files::read_fatura(session);
    const PrintSettings& print = session.print;
    QCOMPARE(print.OptPrn, 1);
    QCOMPARE(print.KSAY, QStringLiteral("3"));
    QCOMPARE(print.KDVc, 1);
    QCOMPARE(print.KDVZ, QStringLiteral("18"));
    QCOMPARE((QStringList{print.krk[0], print.krk[1], print.krk[2], print.krk[11]}),
             (QStringList{"166", "167", "220", "231"}));
    QCOMPARE(print.layoutCount, 2);
    QCOMPARE((QStringList{print.flbl[0], print.yy[0], print.xx[0], print.aa[0]}),
             (QStringList{" ADSOY", "5", "10", "0"}));
    QCOMPARE((QStringList{print.flbl[1], print.yy[1], print.xx[1], print.aa[1]}),
             (QStringList{" TARIH", "6", "60", ""}));
}

void ParameterFilesTest::fatura_holds_sixteen_items() {
    const Folders office;
    Folders::write(fatura, "\"\",0,1,0,0\r\n" + letter_codes + layout(16));
    SessionContext session = office.session();
    parameter_files::read_fatura(session);
    QCOMPARE(session.print.layoutCount, 16);
    QCOMPARE(session.print.flbl[15], QStringLiteral(" F15"));
}

void ParameterFilesTest::cash_types_stand_as_they_are() {
    const Folders office;
    const SessionContext session = office.session();
    QCOMPARE(parameter_files::read_kasa_tip(session), QStringList{" "});
    QVERIFY2(!paths::exists(kasa_tip), "the list is the office's own to write");
    Folders::write(kasa_tip, "TL\r\nAlt\xFDn, gram\r\n \"USD\" ");
    QCOMPARE(parameter_files::read_kasa_tip(session), (QStringList{"TL", "Altın, gram", " \"USD\" "}));
}

void ParameterFilesTest::flags_of_the_screen_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("flags");
    QTest::newRow("missing") << QByteArray() << "11";
    QTest::newRow("two") << QByteArray("\"00\"\r\n") << "00";
    QTest::newRow("bare") << QByteArray("10") << "10";
    QTest::newRow("one") << QByteArray("\"0\"\r\n") << "01";
    QTest::newRow("empty text") << QByteArray("\"\"\r\n") << "1";
    QTest::newRow("longer") << QByteArray("\"011\"\r\n") << "011";
}

void ParameterFilesTest::flags_of_the_screen() {
    QFETCH(QByteArray, file);
    const Folders office;
    if (!file.isNull()) Folders::write(tak, file);
    SessionContext session = office.session();
    parameter_files::read_tak(session);
    QTEST(session.uiFlags, "flags");
    QCOMPARE(Folders::bytes(tak), file);

    session.uiFlags = QStringLiteral("01");
    bayrak_yaz(session);
    QCOMPARE(Folders::bytes(tak), QByteArray("\"01\"\r\n"));
}

void ParameterFilesTest::broken_file_names_what_is_missing_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("words");
    const QByteArray head = "\"\",0,1,0,18\r\n";
    QTest::newRow("Prmt empty") << prmt << QByteArray() << "2. değer (Senet Yatay) eksik";
    QTest::newRow("Prmt of 13") << prmt << QByteArray("1,2,3,4,5,6,7,8,9,10,11,12,13") << "14. değer";
    QTest::newRow("cash types") << kasa_tip << QByteArray() << "1. satır";
    QTest::newRow("Fatura of 4") << fatura << QByteArray("\"\",0,1,0\r\n") << "5. değer (KDV oranı) eksik";
    QTest::newRow("word for the printer") << fatura << QByteArray("\"\",lazer,1,0,0\r\n") << "2. değer";
    QTest::newRow("third printer") << fatura << QByteArray("\"\",2,1,0,0\r\n") << "2. değer";
    QTest::newRow("word for copies") << fatura << QByteArray("\"\",0,iki,0,0\r\n") << "\"iki\"";
    QTest::newRow("word for the switch") << fatura << QByteArray("\"\",0,1,evet,0\r\n") << "4. değer";
    QTest::newRow("word for the rate") << fatura << QByteArray("\"\",0,1,0,%18\r\n") << "5. değer";
    QTest::newRow("11 letters") << fatura << head + letter_codes.chopped(5) << "17. değer (ç harfinin kodu)";
    QTest::newRow("half a group") << fatura << head + letter_codes + layout(2) + "\"KDV\",7\r\n"
                                  << "28. değer";
    QTest::newRow("17 items") << fatura << head + letter_codes + layout(17) << "en çok 16";
    QTest::newRow("flags empty") << tak << QByteArray() << "1. değer";
}

void ParameterFilesTest::broken_file_names_what_is_missing() {
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, words);
    const Folders office;
    Folders::write(file, content);
    SessionContext session = office.session();
    const QString said = refusal([&] { read_all(session); });
    QVERIFY2(said.contains(file) && said.contains(words), qPrintable(said));
    QCOMPARE(Folders::bytes(file), content);
}
