#include "platform/widgets/CommandRouter.h"

#include "support/Gui.h"

#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>
#include <set>

namespace {

struct Target : CommandTarget {
    std::set<unsigned> known;
    bool enabled = true;
    bool checked = false;
    std::vector<unsigned> done;
    int asked = 0;

    bool OnCommand(unsigned id) override {
        done.push_back(id);
        return true;
    }
    bool OnUpdateCommand(unsigned id, CommandState& state) override {
        ++asked;
        if (!known.contains(id))
            return false;
        state.enabled = enabled;
        state.checked = checked;
        return true;
    }
};

constexpr unsigned Save = 57603, Open = 57601, Preview = 57609;

struct Chain {
    Target view, application;
    bool hasView = true;
    CommandRouter router{[this] {
        return std::vector<CommandTarget*>{hasView ? &view : nullptr, &application};
    }};

    Chain() {
        view.known = {Save};
        application.known = {Save, Open};
    }
};

} // namespace

TEST(CommandRouter, TheFirstTargetThatKnowsACommandAnswersIt) {
    Chain chain;
    EXPECT_TRUE(chain.router.Send(Save));
    EXPECT_TRUE(chain.router.Send(Open));
    EXPECT_EQ(chain.view.done, std::vector<unsigned>{Save});
    EXPECT_EQ(chain.application.done, std::vector<unsigned>{Open});
    chain.hasView = false;
    chain.router.Send(Save);
    EXPECT_EQ(chain.application.done.back(), Save);
}

TEST(CommandRouter, ADisabledCommandIsNotRun) {
    Chain chain;
    chain.view.enabled = false;
    EXPECT_FALSE(chain.router.Send(Save));
    EXPECT_TRUE(chain.view.done.empty());
}

TEST(CommandRouter, ACommandThatNobodyKnowsStaysDisabled) {
    Chain chain;
    QAction* preview = chain.router.ActionOf(Preview);
    QAction* save = chain.router.ActionOf(Save);
    Gui::Settle();
    EXPECT_FALSE(preview->isEnabled());
    EXPECT_TRUE(save->isEnabled());
    EXPECT_EQ(chain.router.ActionOf(Save), save);
}

TEST(CommandRouter, AStateThatChangesIsShownAfterTheNextEvent) {
    Chain chain;
    QWidget window;
    QAction* save = chain.router.ActionOf(Save);
    save->setCheckable(true);
    Gui::Show(window);
    EXPECT_TRUE(save->isEnabled());
    chain.view.enabled = false;
    chain.view.checked = true;
    Gui::Key(window, Qt::Key_A);
    EXPECT_FALSE(save->isEnabled());
    EXPECT_TRUE(save->isChecked());
}

TEST(CommandRouter, ATriggeredActionIsSetBackToItsState) {
    Chain chain;
    QAction* save = chain.router.ActionOf(Save);
    save->setCheckable(true);
    Gui::Settle();
    save->trigger(); // flips itself before it tells
    Gui::Settle();
    EXPECT_FALSE(save->isChecked());
    EXPECT_EQ(chain.view.done.size(), 1u);
}

TEST(CommandRouter, AnIdleProgramAsksNobody) {
    Chain chain;
    chain.router.ActionOf(Save);
    int updates = 0;
    chain.router.AfterUpdate = [&updates] { ++updates; };
    Gui::Settle();
    EXPECT_GE(updates, 1);
    const int before = chain.view.asked;
    QTest::qWait(50);
    // The waiting itself is a timer or two.
    EXPECT_LE(chain.view.asked - before, 5);
    EXPECT_FALSE(chain.router.IsIdlePending());
}
