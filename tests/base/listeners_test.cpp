#include "base/listeners.h"

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace zkp {
namespace {

using Function = std::function<void()>;

/// A list whose listeners write a letter each.
struct Heard {
    std::optional<Listeners<Function>> list{std::in_place};
    std::string said;

    [[nodiscard]] Listening add(
        char letter, Function then = [] {}) {
        return list->add([this, letter, then] {
            said += letter;
            then();
        });
    }
    std::string tell() {
        said.clear();
        list->notify();
        return said;
    }
};

TEST(Listeners, AllAreToldInTheOrderInWhichTheyCame) {
    Heard h;
    EXPECT_EQ(h.tell(), "");
    const Listening a = h.add('a');
    const Listening b = h.add('b');
    const Listening c = h.add('c');
    EXPECT_EQ(h.tell(), "abc");
}

TEST(Listeners, OneIsToldUntilItStops) {
    Heard h;
    Listening a = h.add('a');
    {
        const Listening b = h.add('b');
        EXPECT_EQ(h.tell(), "ab");
    }
    EXPECT_EQ(h.tell(), "a");
    EXPECT_FALSE(h.list->isEmpty());
    a.stop();
    EXPECT_EQ(h.tell(), "");
    EXPECT_TRUE(h.list->isEmpty());
    EXPECT_FALSE(a);
}

TEST(Listeners, APlaceThatIsTakenAnewEndsTheListenerBefore) {
    Heard h;
    Listening one = h.add('a');
    one = h.add('b');
    EXPECT_EQ(h.tell(), "b");
    const Listening moved = std::move(one);
    EXPECT_EQ(h.tell(), "b");
    EXPECT_TRUE(moved);
}

TEST(Listeners, OneMayStopItselfWhileItIsTold) {
    Heard h;
    Listening a;
    std::string after;
    a = h.add('a', [&] {
        a.stop();
        after += "still whole"; // what it holds lives until it returns
    });
    const Listening b = h.add('b');
    EXPECT_EQ(h.tell(), "ab");
    EXPECT_EQ(after, "still whole");
    EXPECT_EQ(h.tell(), "b");
}

TEST(Listeners, OneThatIsStoppedInARoundIsNotToldInIt) {
    Heard h;
    Listening c;
    const Listening a = h.add('a', [&] { c.stop(); });
    const Listening b = h.add('b');
    c = h.add('c');
    EXPECT_EQ(h.tell(), "ab");
    EXPECT_EQ(h.tell(), "ab");
}

TEST(Listeners, OneThatComesInARoundHearsOfTheNext) {
    Heard h;
    std::vector<Listening> late;
    const Listening a = h.add('a', [&] {
        for (char letter = 'x'; letter <= 'z' && late.size() < 3; ++letter) // the list grows, and moves
            late.push_back(h.add(letter));
    });
    const Listening b = h.add('b');
    EXPECT_EQ(h.tell(), "ab");
    EXPECT_EQ(h.tell(), "abxyz");
}

TEST(Listeners, WhenTheListIsDestroyedInARoundNobodyElseIsTold) {
    Heard h;
    const Listening a = h.add('a');
    const Listening b = h.add('b', [&] { h.list.reset(); });
    Listening c = h.add('c');
    EXPECT_EQ(h.tell(), "ab");
    EXPECT_TRUE(c);
    c.stop(); // of what is gone
}

TEST(Listeners, ARoundMayTellAnew) {
    Heard h;
    bool again = true;
    Listening b;
    const Listening a = h.add('a', [&] {
        if (std::exchange(again, false)) {
            h.list->notify();
            b.stop();
        }
    });
    b = h.add('b');
    const Listening c = h.add('c');
    EXPECT_EQ(h.tell(), "aabcc");
    EXPECT_EQ(h.tell(), "ac");
}

TEST(Listeners, OneThatThrowsSilencesNobodyAndTheFirstFailureIsTold) {
    Heard h;
    const Listening a = h.add('a');
    Listening b = h.add('b', [] { throw std::runtime_error("no"); });
    const Listening c = h.add('c', [] { throw std::logic_error("nor I"); });
    const Listening d = h.add('d');
    EXPECT_THROW(h.tell(), std::runtime_error);
    EXPECT_EQ(h.said, "abcd");
    b.stop();
    EXPECT_THROW(h.tell(), std::logic_error);
    EXPECT_EQ(h.said, "acd");
}

TEST(Listeners, OneThatDestroysTheListAndThrowsIsHeard) {
    Heard h;
    const Listening a = h.add('a', [&] {
        h.list.reset();
        throw std::runtime_error("no");
    });
    const Listening b = h.add('b');
    EXPECT_THROW(h.list->notify(), std::runtime_error);
    EXPECT_EQ(h.said, "a");
}

TEST(Listeners, AllGetTheSameArgument) {
    Listeners<std::function<void(int&)>> list;
    const Listening one = list.add([](int& n) { n += 1; });
    const Listening two = list.add([](int& n) { n *= 10; });
    int number = 4;
    list.notify(number);
    EXPECT_EQ(number, 50);
}

TEST(Listeners, AListenerMayBeSeveralFunctions) {
    struct Door {
        std::function<void()> opened;
        std::function<void()> closed;
    };
    Listeners<Door> doors;
    int opened = 0;
    const Listening one = doors.add({.opened = [&] { ++opened; }, .closed = {}});
    const Listening other = doors.add({.opened = {}, .closed = {}});
    doors.tell([](const Door& door) {
        if (door.opened)
            door.opened();
    });
    EXPECT_EQ(opened, 1);
}

} // namespace
} // namespace zkp
