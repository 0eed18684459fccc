// Random standards, merged, against the rule said in a few lines.
#include "MergeRoom.h"

#include <random>

namespace {

struct ModelCheck {
    int type;
    CString name;
    bool deleted;
    double length;
};

struct ModelFile {
    bool isMetre; // else millimetres
    std::vector<ModelCheck> checks;
};

class Generator {
public:
    explicit Generator(unsigned seed) : m_engine(seed) {}

    ModelFile File(int number) {
        ModelFile file{Below(2) == 1, {}};
        const int count = Below(12);
        for (int i = 0; i < count; ++i)
            file.checks.push_back({100 + Below(8), CString("%1-%2").arg(number).arg(i), Below(4) == 0,
                                   static_cast<double>(Below(1000))});
        return file;
    }
    int Below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned>(bound)); }

private:
    std::mt19937 m_engine;
};

CString XmlOf(const ModelFile& file) {
    CString checks;
    for (const ModelCheck& check : file.checks)
        checks += Check(CString::number(check.type), check.name, Measure(1, {CString::number(check.length)}),
                        check.deleted ? 1 : 0);
    return Standard(checks, file.isMetre ? "Unit='2'" : "Unit='0'");
}

void MergeInto(std::vector<ModelCheck>& result, const ModelFile& file, bool baseIsMetre) {
    for (ModelCheck check : file.checks) {
        if (check.deleted)
            continue;
        const auto earlier = std::find_if(result.begin(), result.end(),
                                          [&check](const ModelCheck& c) { return c.type == check.type; });
        if (earlier != result.end())
            result.erase(earlier);
        if (file.isMetre != baseIsMetre)
            check.length *= baseIsMetre ? 0.001 : 1000;
        result.push_back(check);
    }
}

CStringArray NamesOf(const std::vector<ModelCheck>& checks) {
    CStringArray names;
    for (const ModelCheck& check : checks)
        names.append(CString(check.deleted ? "-" : "") + CString::number(check.type) + " " + check.name);
    return names;
}

} // namespace

class MergeModel : public MergeRoom {
protected:
    std::vector<ModelFile> PutRandomFiles(Generator& random) {
        std::vector<ModelFile> made;
        const int count = 2 + random.Below(3);
        files.clear();
        for (int i = 0; i < count; ++i) {
            made.push_back(random.File(i));
            const CString name = CString::number(i) + ".kvstd";
            random.Below(3) == 0 ? PutPacked(name, XmlOf(made.back())) : Put(name, XmlOf(made.back()));
        }
        return made;
    }

    void Compare(const std::vector<ModelCheck>& expected, const CString& path, unsigned seed) {
        ASSERT_EQ(ChecksOf(path), NamesOf(expected)) << "seed " << seed;
        for (const ModelCheck& check : expected) {
            const CStringArray values = ValuesOf(path, check.name);
            ASSERT_FALSE(values.isEmpty());
            EXPECT_NEAR(values[0].toDouble(), check.length, 1e-6) << "seed " << seed;
        }
    }
};

TEST_F(MergeModel, BatchMergeFollowsTheRule) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        Generator random(seed);
        const std::vector<ModelFile> made = PutRandomFiles(random);
        std::vector<ModelCheck> expected = made[0].checks;
        for (size_t i = 1; i < made.size(); ++i)
            MergeInto(expected, made[i], made[0].isMetre);
        ASSERT_EQ(Batch(), 1);
        Compare(expected, BatchPath(), seed);
    }
}

TEST_F(MergeModel, ListedMergeFollowsTheRuleWithTheBaseTwice) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        Generator random(seed);
        const std::vector<ModelFile> made = PutRandomFiles(random);
        std::vector<ModelCheck> expected = made[0].checks;
        for (const ModelFile& file : made)
            MergeInto(expected, file, made[0].isMetre);
        ASSERT_EQ(Listed(), 1);
        Compare(expected, ListedPath(), seed);
    }
}
