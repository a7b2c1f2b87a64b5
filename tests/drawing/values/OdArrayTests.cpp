// SPDX-License-Identifier: MIT
#include "OdArray.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using Texts = OdArray<std::string>;

Texts textsOf(std::initializer_list<const char *> items)
{
    Texts texts;
    for (const char *item : items) {
        texts.append(item);
    }
    return texts;
}

std::string joined(const Texts &texts)
{
    std::string all;
    for (const std::string &text : texts) {
        all += text + ' ';
    }
    return all;
}

// An element for whose copy there is no memory.
struct Heavy {
    Heavy() = default;
    Heavy(Heavy &&) = default;
    Heavy &operator=(Heavy &&) = default;
    Heavy &operator=(const Heavy &) = delete;
    Heavy(const Heavy &) { throw std::bad_alloc(); }
    ~Heavy() = default;
};

template <class Action> int codeOf(Action action)
{
    try {
        action();
    } catch (const OdError &error) {
        return error.code();
    }
    return 0;
}

} // namespace

TEST(Array, IsEmptyAtFirst)
{
    const Texts texts;

    EXPECT_TRUE(texts.isEmpty());
    EXPECT_EQ(texts.size(), 0U);
    EXPECT_EQ(texts.length(), 0U);
    EXPECT_TRUE(texts.begin() == texts.end());
    EXPECT_EQ(texts.find("a"), -1);
}

TEST(Array, GrowsAtTheEndAndAnywhereElse)
{
    Texts texts = textsOf({ "b" });

    texts.push_back("d");
    texts.insertAt(0, "a");
    texts.insertAt(2, "c");
    texts.insertAt(4, "e");

    EXPECT_EQ(joined(texts), "a b c d e ");
    EXPECT_EQ(texts.first(), "a");
    EXPECT_EQ(texts.last(), "e");
    EXPECT_EQ(texts.length(), 5U);
}

TEST(Array, AnElementOfItsOwnCanBeAppended)
{
    Texts texts = textsOf({ "a text that is too long to stand within its object" });

    for (int i = 0; i < 40; ++i) {
        texts.append(texts.at(0));
    }

    EXPECT_EQ(texts.last(), texts.first());
}

TEST(Array, LosesElements)
{
    Texts texts = textsOf({ "a", "b", "c", "d" });

    texts.removeAt(1);
    texts.removeAt(2);

    EXPECT_EQ(joined(texts), "a c ");
    texts.clear();
    EXPECT_EQ(joined(texts), "");
}

TEST(Array, ResizingCutsOrAddsEmptyElements)
{
    Texts texts = textsOf({ "a", "b" });

    texts.resize(3);
    EXPECT_EQ(joined(texts), "a b  ");
    texts.resize(1);
    EXPECT_EQ(joined(texts), "a ");
}

TEST(Array, FindsFromAPlaceOn)
{
    const Texts texts = textsOf({ "a", "b", "a" });

    EXPECT_EQ(texts.find("a"), 0);
    EXPECT_EQ(texts.find("a", 1), 2);
    EXPECT_EQ(texts.find("a", 3), -1);
    EXPECT_EQ(texts.find("a", 99), -1);
    EXPECT_TRUE(texts.contains("b"));
    EXPECT_FALSE(texts.contains("c"));
}

TEST(Array, ACopySharesItsElementsUntilOneOfTheTwoChanges)
{
    Texts texts = textsOf({ "a", "b" });
    Texts copy = texts;
    ASSERT_TRUE(copy.sharesWith(texts));

    copy[0] = "changed";

    EXPECT_FALSE(copy.sharesWith(texts));
    EXPECT_EQ(joined(texts), "a b ");
    EXPECT_EQ(joined(copy), "changed b ");
}

TEST(Array, EveryChangeLeavesTheOtherCopiesAlone)
{
    const Texts texts = textsOf({ "a", "b" });
    using Change = void (*)(Texts &);
    const Change changes[] = {
        [](Texts &changed) { changed.append("x"); },
        [](Texts &changed) { changed.insertAt(0, "x"); },
        [](Texts &changed) { changed.removeAt(0); },
        [](Texts &changed) { changed.clear(); },
        [](Texts &changed) { changed.resize(1); },
        [](Texts &changed) { changed[1] = "x"; },
    };

    for (const Change change : changes) {
        Texts copy = texts;
        change(copy);
        EXPECT_NE(joined(copy), "a b ");
    }

    EXPECT_EQ(joined(texts), "a b ");
}

TEST(Array, ReadingDoesNotEndTheSharing)
{
    const Texts texts = textsOf({ "a", "b" });
    Texts shared;
    shared = texts;
    const Texts &copy = shared;

    EXPECT_EQ(copy[0] + copy.at(1) + copy.first() + copy.last() + *copy.begin(), "ababa");
    EXPECT_TRUE(copy.sharesWith(texts));
}

TEST(Array, AnArrayThatAloneHoldsItsElementsChangesThemInPlace)
{
    Texts texts = textsOf({ "a", "b" });
    const std::string *const before = &texts.at(0);

    texts[0] = "changed";

    EXPECT_EQ(&texts.at(0), before);
}

TEST(Array, AMovedArrayTakesTheElementsAlong)
{
    Texts texts = textsOf({ "a" });

    const Texts moved = std::move(texts);

    EXPECT_EQ(joined(moved), "a ");
}

TEST(Array, IsEqualByElements)
{
    EXPECT_TRUE(textsOf({ "a", "b" }) == textsOf({ "a", "b" }));
    EXPECT_TRUE(Texts() == textsOf({}));
    EXPECT_FALSE(textsOf({ "a", "b" }) == textsOf({ "a" }));
    EXPECT_FALSE(textsOf({ "a", "b" }) == textsOf({ "b", "a" }));
}

TEST(Array, IndexesOutsideOfTheArrayThrow)
{
    Texts texts = textsOf({ "a" });
    const Texts empty;

    EXPECT_THROW(static_cast<void>(texts.at(1)), OdError_InvalidIndex);
    EXPECT_THROW(static_cast<void>(texts[1]), OdError_InvalidIndex);
    EXPECT_THROW(static_cast<void>(texts.at(unsigned(-1))), OdError_InvalidIndex);
    EXPECT_THROW(texts.insertAt(2, "x"), OdError_InvalidIndex);
    EXPECT_THROW(texts.removeAt(1), OdError_InvalidIndex);
    EXPECT_THROW(static_cast<void>(empty.first()), OdError_InvalidIndex);
    EXPECT_THROW(static_cast<void>(empty.last()), OdError_InvalidIndex);
    EXPECT_THROW(static_cast<void>(empty[0]), OdError_InvalidIndex);
    EXPECT_EQ(joined(texts), "a ");
}

TEST(Array, AWrongIndexEndsNoSharing)
{
    Texts texts = textsOf({ "a" });
    const Texts copy = texts;

    EXPECT_THROW(static_cast<void>(texts[1]), OdError_InvalidIndex);

    EXPECT_TRUE(copy.sharesWith(texts));
}

TEST(Array, MissingMemoryIsAnErrorOfTheLibraryAndChangesNothing)
{
    OdArray<Heavy> items;
    items.resize(2);
    OdArray<Heavy> copy = items;

    const int code = codeOf([&] { copy.resize(3); });

    EXPECT_EQ(code, 9);
    EXPECT_TRUE(copy.sharesWith(items));
    EXPECT_EQ(copy.size(), 2U);
}
