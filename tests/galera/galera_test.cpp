// Four desks collect at once at three nodes of a cluster, one of which is killed in the middle. Each desk is a process
// with the program itself, collects an amount of its own, and names the nodes in an order of its own.
#include "audit.h"
#include "moving.h"
#include "platform/paths.h"
#include "store/workstation.h"
#include "support/mariadb_server.h"
#include "support/run_all.h"
#include "support/school.h"
#include "support/test_engine.h"

#include <csignal>
#include <deque>
#include <filesystem>

namespace {

const QString zeros = "-0000-0000-0000-000000000000";
const QStringList nodes{loopback(1), loopback(2), loopback(3)},
    members{"0000000a" + zeros, "0000000b" + zeros, "0000000c" + zeros};
constexpr int first_student = 1250, desks = 4;

// A node of a cluster that stopped as a whole and in one state: its members find each other without copying anything.
std::unique_ptr<MariadbServer> start_node(qsizetype node) {
    const QString state = "00000001" + zeros, address = nodes[node];
    const QString saved = "# GALERA saved state\nversion: 2.1\nuuid: " + state + "\nseqno: 0\nsafe_to_bootstrap: 0\n";
    const QString view = "my_uuid: " + members[node] + "\n#vwbeg\nview_id: 3 " + members[0] +
                         " 1\nbootstrap: 0\nmember: " + members.join(" 0\nmember: ") + " 0\n#vwend\n";
    const QStringList arguments{
        "--binlog-format=ROW",
        "--innodb-autoinc-lock-mode=2",
        "--wsrep-on=ON",
        "--wsrep-provider=" + qEnvironmentVariable("KURVO_GALERA"),
        "--wsrep-sst-method=skip",
        "--wsrep-cluster-address=gcomm://" + nodes.join(','),
        "--wsrep-node-address=" + address,
        "--wsrep-start-position=" + state + ":0",
        "--wsrep-provider-options=gmcast.listen_addr=tcp://" + address + ":4567;gcache.size=8M"};
    return std::make_unique<MariadbServer>(
        address, arguments,
        QMap<QString, QByteArray>{{"grastate.dat", saved.toUtf8()}, {"gvwstate.dat", view.toUtf8()}});
}

void change_nodes(const School& school, const QStringList& before, const QStringList& now) {
    for (const QString& name : paths::files_in(school.data_file({}), ".mdb"))
        test_engine::change_place(school.data_file(name), before.join(',').toLatin1(), now.join(',').toLatin1());
}

// A desk whose program ends over a failure is started again, as its clerk would.
class Desk {
public:
    Desk(const School& school, int number, int of_student, int postings)
        : student(of_student),
          amount(7 + 4 * number),
          school_(school),
          drives_(school.drives.path(QString("masa-%1").arg(number)).toUtf8()),
          left_(postings) {
        QDir().mkpath(drives_ + "/c/qlm");
        std::filesystem::copy(school.drives.path("c/okul").toStdString(), (drives_ + "/c/okul").toStdString(),
                              std::filesystem::copy_options::recursive);
        QStringList order = nodes;
        std::rotate(order.begin(), order.begin() + number % nodes.size(), order.end());
        on_its_drives([&] { change_nodes(school, nodes, order); });
        start();
    }

    // Until it has tried to post once more; words that were not there before tell of a failure.
    void hear() {
        QString said = process_->hear();
        for (; !said.isEmpty() && !said.startsWith("done"); said = process_->hear()) words << said;
        --left_;
        ++(said == told_ ? reported : failed);
        if (std::exchange(told_, said) != said) words << said;
        if (said.isEmpty()) start();
    }
    int finish() { return process_->finish(); }

    const int student, amount;
    int reported = 0, failed = 0;
    QStringList words;

private:
    template <typename Act>
    void on_its_drives(Act act) {
        const QByteArray before = qgetenv("KURVO_DRIVES");
        qputenv("KURVO_DRIVES", drives_);
        act();
        qputenv("KURVO_DRIVES", before);
    }
    void start() {
        told_ = "done";
        on_its_drives([this] {
            school_.hand_over({});
            QStringList arguments{"post"};
            for (const int number : {student, amount, left_, 100}) arguments << QString::number(number);
            process_ = std::make_unique<Workstation>(KURVO_DONGU, arguments << beginning_);
        });
        for (QString word = "begin"; !word.isEmpty() && word != "ready";) word = process_->hear();
        process_->go_on();
    }

    static inline const QString beginning_ = QString::number(QDateTime::currentMSecsSinceEpoch());
    const School& school_;
    const QByteArray drives_;
    int left_;
    QString told_;
    std::unique_ptr<Workstation> process_;
};

}  // namespace

class GaleraTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        servers_.clear();
        for (qsizetype node = 0; node < nodes.size(); ++node) servers_.push_back(start_node(node));
        for (const auto& server : servers_) {
            const Administrator root = server->administrator();
            QTRY_COMPARE_WITH_TIMEOUT(root.query("show status like 'wsrep_ready'"), QStringList("wsrep_ready|ON"),
                                      30000);
        }
        const Administrator root = servers_.front()->administrator();
        QCOMPARE(root.query("show status like 'wsrep_cluster_size'"), QStringList("wsrep_cluster_size|3"));
        root.query("create database okul");
        root.query("create user kurvo@'%' identified by 'gizli'");
        root.query("grant all on okul.* to kurvo@'%'");
    }

    void no_reported_posting_is_lost_or_doubled_when_a_node_dies_data() {
        QTest::addColumn<int>("students");
        QTest::newRow("a student for each desk") << desks;
        QTest::newRow("one instalment for all") << 1;
    }

    void no_reported_posting_is_lost_or_doubled_when_a_node_dies() {
        QFETCH(int, students);
        const int postings = qEnvironmentVariableIsSet("KURVO_LONG_TESTS") ? 400 : 60;
        School school;
        school.drives.put("c/okul/data/KasaTip.txt", "TL\r\n");
        for (int student = 0; student < students; ++student)
            school.student(first_student + student).name("AYŞE").instalment("20270110", 1000000);
        store::ServerPlace place;
        place.hosts = nodes;
        place.database = "okul", place.user = "kurvo", place.password = "gizli";
        const auto silent = [](const QString&, const QString&) {};
        QVERIFY(moving::to_server(school.data_root(), place, {}, false, {silent, {}, silent}) > 0);

        std::deque<Desk> at;
        for (int desk = 0; desk < desks; ++desk)
            at.emplace_back(school, desk, first_student + desk % students, postings);
        for (int posting = 0; posting < postings; ++posting) {
            if (posting == postings / 3) ::kill(static_cast<pid_t>(servers_.front()->pid()), SIGKILL);
            for (Desk& desk : at) desk.hear();
        }
        for (Desk& desk : at) {
            qInfo("%d reported, %d failed: %s", desk.reported, desk.failed, qPrintable(desk.words.join(" / ")));
            QVERIFY(desk.reported > postings * 3 / 4);
            QCOMPARE(desk.finish(), 0);
        }
        change_nodes(school, nodes, {nodes[1]});
        const QStringList rows = checked_rows(school, at);
        change_nodes(school, {nodes[1]}, {nodes[2]});
        QCOMPARE(checked_rows(school, at), rows);
    }

private:
    static QStringList checked_rows(const School& school, const std::deque<Desk>& at) {
        const QStringList cash = school.rows("Kasa", {"ACK", "TUTAR", "TARIH", "SAAT"}),
                          paid = school.rows("Tahsilat", {"ONO", "ODENEN", "VADE", "TARIH", "KSAAT"});
        qsizetype known = 0;
        QMap<int, qsizetype> sums;
        for (const Desk& desk : at) {
            const QString pattern = QString("^%1(  AYŞE #2026)?\\|%2\\|").arg(desk.student).arg(desk.amount);
            const qsizetype in_cash = cash.filter(QRegularExpression(pattern)).size(),
                            in_paid = paid.filter(QRegularExpression(pattern)).size();
            [&] {
                QVERIFY(in_cash >= desk.reported && in_cash <= desk.reported + desk.failed);
                QVERIFY(in_paid >= desk.reported && in_paid <= in_cash);
            }();
            known += in_cash + in_paid;
            sums[desk.student] += desk.amount * in_paid;
        }
        QStringList expected;
        for (auto sum = sums.begin(); sum != sums.end(); ++sum) expected << QString("%1|%2").arg(sum.key()).arg(*sum);
        [&] {
            QCOMPARE(known, cash.size() + paid.size());
            QCOMPARE(school.rows("Odeme", {"ONO", "ODENEN"}), expected);
        }();
        for (const audit::Finding& finding : audit::look_over(school.data_root()))
            if (finding.fault) QTest::qFail(qPrintable(finding.place + ": " + finding.words), __FILE__, __LINE__);
        return cash + paid;
    }

    std::vector<std::unique_ptr<MariadbServer>> servers_;
};

static const Registered<GaleraTest> registered;
#include "galera_test.moc"
