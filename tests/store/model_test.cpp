#include "office.h"
#include "support/run_all.h"

#include <map>
#include <optional>
#include <random>

namespace {

using Key = std::pair<int, QString>;
struct Row {
    int amount, entry;  // the entry tells a row from a later one with the same key
};

// `place` is the key of the row that the cursor stands on or behind, none where undefined.
struct Opener {
    explicit Opener(const QString& file) : database(store::OpenDatabase(file)) {}

    store::Database database;
    store::Recordset odeme = database.OpenRecordset("Odeme");
    std::optional<Key> place;
    int entry = 0;
};

// A random walk over few keys, so that collisions, empty tables and vanished rows are frequent.
class Walk {
public:
    Walk(const QString& file, unsigned seed) : random_(seed), openers_{Opener(file), Opener(file)} {}

    void step() {
        Opener& opener = openers_[roll(2)];
        const Key key = random_key();
        const unsigned way = roll(9);
        if (way < 2) return add_row(opener, key);
        if (way == 2) return scan(opener, key.first);
        if (way == 3) return move_next(opener);
        seek(opener, way < 7 ? "=" : ">", key);
        if (!opener.place || way == 4 || way == 7) return;
        if (way < 7) return change(opener, key, way == 5 ? key : random_key());
        opener.odeme.Delete();
        model_.erase(*opener.place);
    }

private:
    unsigned roll(unsigned sides) { return static_cast<unsigned>(random_() % sides); }
    Key random_key() { return {static_cast<int>(roll(4)), QStringLiteral("2026%1").arg(1001 + roll(12))}; }
    static Key here(Opener& opener) {
        return {static_cast<int>(opener.odeme["ONO"].whole_number()), opener.odeme["VADE"].text()};
    }
    void expect(Opener& opener, std::map<Key, Row>::iterator row) {
        opener.place.reset();
        if (row == model_.end()) return;
        QCOMPARE(here(opener), row->first);
        QCOMPARE(opener.odeme["TUTAR"].whole_number(), row->second.amount);
        opener.place = row->first;
        opener.entry = row->second.entry;
    }

    void add_row(Opener& opener, const Key& key) {
        const int amount = ++last_;
        const auto code = code_of([&] { add_instalment(opener.odeme, key.first, key.second, amount); });
        QCOMPARE(code == store::Errc::duplicate_key, model_.contains(key));
        model_.try_emplace(key, Row{amount, amount});
        if (!opener.place) return;
        const auto row = model_.find(*opener.place);
        if (row != model_.end() && row->second.entry == opener.entry) QCOMPARE(here(opener), *opener.place);
    }

    void change(Opener& opener, const Key& before, const Key& after) {
        const int amount = ++last_;
        opener.odeme.Edit();
        opener.odeme["TUTAR"] = amount;
        opener.odeme["ONO"] = after.first;
        opener.odeme["VADE"] = after.second;
        const bool taken = after != before && model_.contains(after);
        QCOMPARE(code_of([&] { opener.odeme.Update(); }) == store::Errc::duplicate_key, taken);
        if (!taken) {
            model_.erase(before);
            model_[after] = {amount, opener.entry};
            opener.place = after;
        }
        QCOMPARE(here(opener), *opener.place);
    }

    void seek(Opener& opener, std::string_view how, const Key& key) {
        opener.odeme.Seek(how, {key.first, key.second});
        const auto row = how == "=" ? model_.find(key) : model_.upper_bound(key);
        QCOMPARE(opener.odeme.NoMatch(), row == model_.end());
        expect(opener, row);
    }

    void scan(Opener& opener, int student) {
        QCOMPARE(opener.odeme.RecordCount(), static_cast<std::int64_t>(model_.size()));
        std::vector<std::int64_t> amounts, expected;
        store::scan_prefix(opener.odeme, {student}, [&] { amounts.push_back(opener.odeme["TUTAR"].whole_number()); });
        for (const auto& [key, row] : model_)
            if (key.first == student) expected.push_back(row.amount);
        QCOMPARE(amounts, expected);
        opener.place.reset();
    }

    void move_next(Opener& opener) {
        if (!opener.place) return;
        opener.odeme.MoveNext();
        const auto row = model_.upper_bound(*opener.place);
        QCOMPARE(opener.odeme.Eof(), row == model_.end());
        expect(opener, row);
    }

    std::mt19937 random_;
    Opener openers_[2];
    std::map<Key, Row> model_;
    int last_ = 0;
};

}  // namespace

class ModelTest : public QObject {
    Q_OBJECT

private slots:
    void two_openers_agree_with_a_map() {
        const unsigned walks = qEnvironmentVariableIsSet("KURVO_LONG_TESTS") ? 50 : 3;
        for (unsigned seed = 1; seed <= walks; ++seed) {
            const Office office;
            Walk walk(office.file, seed);
            for (int step = 0; step < 1000 && !QTest::currentTestFailed(); ++step) walk.step();
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString::number(seed)));
        }
    }
};

static const Registered<ModelTest> registered;
#include "model_test.moc"
