#include "model/CheckTree.h"

#include "support/RandomStandard.h"
#include "support/Seeds.h"
#include "support/StandardText.h"

#include <QThread>
#include <gtest/gtest.h>

namespace {

// The walk as it is meant: each node, all below its first link, then on along the second. The last match
// counts.
void WalkFor(CCheck* check, unsigned number, CCheck*& found) {
    for (; check; check = check->Links.Values[1]) {
        if (check->Sequence == number)
            found = check;
        if (check->Links.Values[0])
            WalkFor(check->Links.Values[0], number, found);
    }
}

CheckList ListedByWalks(const CStandard& standard) {
    CheckList list;
    for (unsigned number = 1; number <= standard.LastSequence; ++number) {
        CCheck* found = nullptr;
        WalkFor(standard.Root, number, found);
        if (found)
            list.push_back(found);
    }
    return list;
}

// A tree of numbers that is tidied by recursion. A node has the number 0.
struct Mirror {
    unsigned number = 0;
    std::vector<Mirror*> links;
};

class MirrorTree {
public:
    explicit MirrorTree(const CCheck& root) : m_root(Copied(root)) {}

    void Remove(unsigned number) {
        Mirror* parent = ParentOf(m_root, number);
        std::erase_if(parent->links, [number](const Mirror* link) { return link->number == number; });
        Tidy(m_root);
    }
    CString Shape() const { return ShapeOf(*m_root); }

private:
    Mirror* Copied(const CCheck& check) {
        auto& copy = *m_all.emplace_back(std::make_unique<Mirror>());
        copy.number = check.Sequence;
        for (const CCheck* link : check.Links.Values)
            copy.links.push_back(Copied(*link));
        return &copy;
    }

    static Mirror* ParentOf(Mirror* node, unsigned number) {
        if (node->number != 0)
            return nullptr;
        for (Mirror* link : node->links) {
            if (link->number == number)
                return node;
            if (Mirror* parent = ParentOf(link, number))
                return parent;
        }
        return nullptr;
    }

    Mirror* Tidy(Mirror* x) {
        if (x->number != 0 || x->links.empty())
            return x;
        if (x->links.size() == 1 && x != m_root)
            return x->links[0];
        if (x->links.size() == 1) {
            m_root = x->links[0];
            Tidy(m_root);
            return nullptr;
        }
        for (size_t i = 0; i < 2; ++i) {
            Mirror* result = Tidy(x->links[i]);
            if (result == x->links[i])
                continue;
            x->links.erase(x->links.begin() + static_cast<std::ptrdiff_t>(i));
            x->links.push_back(result);
            Tidy(result);
            break;
        }
        return x;
    }

    static CString ShapeOf(const Mirror& node) {
        if (node.number != 0)
            return CString::number(node.number);
        CStringArray parts;
        for (const Mirror* link : node.links)
            parts.append(ShapeOf(*link));
        return "(" + parts.join(" ") + ")";
    }

    std::vector<std::unique_ptr<Mirror>> m_all;
    Mirror* m_root;
};

CString ShapeOf(const CCheck& check) {
    if (check.Type != 0)
        return CString::number(check.Sequence);
    CStringArray parts;
    for (const CCheck* link : check.Links.Values)
        parts.append(ShapeOf(*link));
    return "(" + parts.join(" ") + ")";
}

// A tree of any shape: nodes with two links, or none at the ends, and checks anywhere.
CCheck* RandomTree(RandomStandard& random, CStandard& standard, int depth) {
    const auto check = [&standard] { return new CCheck(406, ++standard.LastSequence, 0, 0, 1); };
    CCheck* node = CheckTree::MakeNode();
    if (depth == 0 || random.Chance(15))
        return node;
    for (int link = 0; link < 2; ++link)
        node->Links.Values.Add(random.Chance(45) ? check() : RandomTree(random, standard, depth - 1));
    return node;
}

// Runs with a stack on which a recursion along a long chain would not fit.
void OnASmallStack(const std::function<void()>& work) {
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->setStackSize(512 * 1024);
    thread->start();
    thread->wait();
}

} // namespace

TEST(CheckTree, ListingIsThatOfOneWalkPerNumber) {
    for (unsigned seed = 1; seed <= SeedCount(60); ++seed) {
        RandomStandard random(seed);
        CStandard standard;
        for (int i = 0; i < 60; ++i) {
            switch (random.Below(4)) {
            case 0: standard.RemoveCheck(1 + random.Below(standard.LastSequence + 1)); break;
            case 1: standard.MoveCheck(1 + random.Below(standard.LastSequence + 1), random.Type()); break;
            default: Insert(standard, random.Type());
            }
            ASSERT_EQ(AllOf(standard), ListedByWalks(standard)) << "seed " << seed;
        }
    }
}

TEST(CheckTree, LastOfTwoChecksWithOneNumberIsListed) {
    CStandard standard;
    for (int type : {101, 102, 406})
        Insert(standard, type);
    for (CCheck* check : AllOf(standard))
        check->Sequence = check->Type == 406 ? 3 : 2;
    ASSERT_EQ(AllOf(standard).size(), 2u);
    EXPECT_EQ(AllOf(standard), ListedByWalks(standard));
    EXPECT_EQ(AllOf(standard)[0]->Type, 101) << "the one at the bottom is met last";
}

TEST(CheckTree, NumbersBeyondTheLastAreNotListed) {
    CStandard standard;
    Insert(standard, 406);
    AllOf(standard)[0]->Sequence = 5;
    EXPECT_TRUE(AllOf(standard).empty());
    EXPECT_TRUE(ListedByWalks(standard).empty());
}

TEST(CheckTree, RemovingFromAChainTidiesAsTheRecursionDoes) {
    for (unsigned seed = 1; seed <= SeedCount(40); ++seed) {
        RandomStandard random(seed);
        CStandard standard;
        const unsigned count = 1 + random.Below(12);
        for (unsigned i = 0; i < count; ++i)
            Insert(standard, 406);
        MirrorTree mirror(*standard.Root);
        while (!AllOf(standard).empty()) {
            const CheckList left = AllOf(standard);
            const unsigned number = left[random.Below(static_cast<unsigned>(left.size()))]->Sequence;
            standard.RemoveCheck(number);
            mirror.Remove(number);
            ASSERT_EQ(ShapeOf(*standard.Root), mirror.Shape()) << "seed " << seed;
        }
        EXPECT_EQ(standard.Root->Links.Values.Count, 0);
    }
}

TEST(CheckTree, RemovingFromAnyTreeTidiesAsTheRecursionDoes) {
    for (unsigned seed = 1; seed <= SeedCount(300); ++seed) {
        RandomStandard random(seed);
        CStandard standard;
        CheckTree::Free(standard.Root);
        standard.Root = RandomTree(random, standard, 6);
        const unsigned count = standard.LastSequence;
        MirrorTree mirror(*standard.Root);
        for (unsigned i = 0; i < count && standard.Root->Type == 0; ++i) {
            const unsigned number = 1 + random.Below(count);
            CCheck* check = nullptr;
            standard.FindBySequence(number, check);
            if (!check)
                continue;
            standard.RemoveCheck(number);
            mirror.Remove(number);
            ASSERT_EQ(ShapeOf(*standard.Root), mirror.Shape()) << "seed " << seed;
        }
    }
}

TEST(CheckTree, LongChainDoesNotExhaustTheStack) {
    OnASmallStack([] {
        constexpr unsigned Count = 100'000;
        CStandard standard;
        for (unsigned i = 0; i < Count; ++i)
            Insert(standard, 406);
        EXPECT_EQ(AllOf(standard).size(), Count);
        for (unsigned number : {1u, 2u, Count / 2, Count - 1, Count})
            standard.RemoveCheck(number);
        EXPECT_EQ(AllOf(standard).size(), Count - 5);
        CCheck* check = nullptr;
        standard.FindLiveByType(406, check);
        ASSERT_TRUE(check);
        EXPECT_EQ(check->Sequence, 3u);
        CStandard copy;
        copy = standard;
        EXPECT_EQ(copy.LastSequence, Count - 5);
    });
}
