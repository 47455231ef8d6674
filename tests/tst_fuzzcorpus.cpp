// Every fuzz target with thousands of spoilt inputs, the same each time; libFuzzer looks further.

#include "fuzz/fuzztargets.h"
#include "support/mutator.h"

#include <QtTest>

class TestFuzzCorpus : public QObject
{
    Q_OBJECT

private slots:
    void survives_data()
    {
        QTest::addColumn<int>("target");
        for (std::size_t i = 0; i < fuzzTargets().size(); ++i)
            QTest::newRow(fuzzTargets()[i].name) << static_cast<int>(i);
    }
    void survives()
    {
        QFETCH(int, target);
        const FuzzTarget& fuzzed = fuzzTargets()[static_cast<std::size_t>(target)];
        for (const QByteArray& good : fuzzed.corpus)
            fuzzed.run(good);
        constexpr int kInputs = 2500;
        Mutator mutator(1);
        for (int i = 0; i < kInputs; ++i)
            fuzzed.run(mutator.spoil(fuzzed.corpus[mutator.below(fuzzed.corpus.size())]));
    }
};

QTEST_GUILESS_MAIN(TestFuzzCorpus)
#include "tst_fuzzcorpus.moc"
