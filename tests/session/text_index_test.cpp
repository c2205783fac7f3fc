// Folding, pinyin and the index over them, against a naive search.
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>

#include "base/folding.h"
#include "base/text.h"
#include "session/lookups/pinyin.h"
#include "session/lookups/text_index.h"

namespace jxc::test {

namespace {

TEST(Folding, TakesCaseAndWidthAway) {
    EXPECT_EQ(FoldText("Cpu002"), "cpu002");
    EXPECT_EQ(FoldText("ＣＰＵ００２　（Ａ）"), "cpu002 (a)");
    EXPECT_EQ(FoldText("ﾊﾟ"), "パ");
    EXPECT_EQ(FoldText("Straße Ⅳ ㎏"), "strasse iv kg");
    EXPECT_EQ(FoldText("中文M6螺丝"), "中文m6螺丝");
    EXPECT_EQ(FoldText("\xE4\xB8"), "\xE4\xB8"); // cut within a character
    EXPECT_EQ(FoldText("\xFF"
                       "a"),
              "\xFF"
              "a");
    EXPECT_EQ(FoldText(""), "");
}

std::set<std::string> Initials(const std::string& name) {
    const std::vector<std::string> texts = PinyinInitials(FoldText(name));
    return {texts.begin(), texts.end()};
}

TEST(Pinyin, GivesEveryReading) {
    EXPECT_EQ(Initials("螺丝"), (std::set<std::string>{"ls"}));
    EXPECT_EQ(Initials("重庆"), (std::set<std::string>{"cq", "zq"}));
    EXPECT_EQ(Initials("长"), (std::set<std::string>{"c", "z"}));
    EXPECT_EQ(Initials("单"), (std::set<std::string>{"c", "d", "s"}));
    EXPECT_EQ(Initials("M6×20 不锈钢/螺丝（长）"), (std::set<std::string>{"m620bxglsc", "m620bxglsz"}));
    EXPECT_EQ(Initials("ＣＰＵ处理器"), (std::set<std::string>{"cpuclq"}));
    EXPECT_EQ(Initials("處理器鋼"), (std::set<std::string>{"clqg"})); // traditional characters
    EXPECT_EQ(Initials("㑇𬭊"), (std::set<std::string>{"zd"}));    // beyond the common block
    EXPECT_TRUE(Initials("CPU i7").empty());                          // found by the name itself
    EXPECT_TRUE(Initials("").empty());
}

TEST(Pinyin, OfManyReadingsIsCutAtSixteen) {
    const std::vector<std::string> texts = PinyinInitials("长重长重长重长重");
    EXPECT_EQ(texts.size(), 16U);
    EXPECT_EQ(std::set<std::string>(texts.begin(), texts.end()).size(), 16U);
    for (const std::string& text : texts)
        EXPECT_EQ(text.size(), 8U);
    EXPECT_EQ(texts.front(), "zzzzzzzz"); // of the most frequent readings
}

TEST(TextIndex, RanksWhatItFinds) {
    TextIndex index;
    index.Set(1, {"X-A1", "", "甲", ""});
    index.Set(2, {"A1", "", "乙", ""});
    index.Set(3, {"A12", "", "丙", ""});
    index.Set(4, {"D", "690A1", "丁", ""});
    index.Set(5, {"C", "", "螺丝A1", ""});
    index.Set(6, {"B", "", "螺丝", "Ａ１"});
    index.Set(7, {"E", "", "阿1", ""}); // ā: a1
    index.Set(8, {"F", "", "别的", ""});
    const auto hits = index.Find("Ａ1", 20);
    EXPECT_EQ(hits.ids, (std::vector<std::int64_t>{2, 3, 4, 1, 6, 5, 7}));
    EXPECT_EQ(hits.count, 7U);
    const auto few = index.Find("a1", 3);
    EXPECT_EQ(few.ids, (std::vector<std::int64_t>{2, 3, 4}));
    EXPECT_EQ(few.count, 7U);
    EXPECT_TRUE(index.Find("", 5).ids.empty());
    EXPECT_TRUE(index.Find("  ", 5).ids.empty());
    EXPECT_TRUE(index.Find("a1", 0).ids.empty());
    EXPECT_TRUE(index.Find("'", 5).ids.empty());
    EXPECT_TRUE(index.Find("\x1f", 5).ids.empty()); // no text holds what stands between them
    EXPECT_TRUE(index.Find(std::string(100000, 'a'), 5).ids.empty());
}

// What the index should find, by a look at every text.
class NaiveSearch {
  public:
    std::map<std::int64_t, IndexedTexts> things;

    // By goodness and code; things of the same code stand in any order.
    std::vector<std::pair<int, std::string>> Find(const std::string& typed) const {
        std::vector<std::pair<int, std::string>> found;
        const std::string sought = Trim(FoldText(typed));
        for (const auto& [id, texts] : things)
            if (const int grade = Grade(texts, sought); grade >= 0)
                found.emplace_back(grade, FoldText(texts.code));
        std::ranges::sort(found);
        return found;
    }

    static int Grade(const IndexedTexts& texts, const std::string& sought) {
        const auto holds = [&](const std::string& text) {
            return FoldText(text).find(sought) != std::string::npos;
        };
        const std::string code = FoldText(texts.code);
        if (sought.empty())
            return -1;
        if (code == sought)
            return 0;
        if (code.starts_with(sought))
            return 1;
        if (holds(texts.code) || holds(texts.barCode))
            return 2;
        if (holds(texts.name) || holds(texts.spec))
            return 3;
        for (const std::string& initials : PinyinInitials(FoldText(texts.name)))
            if (initials.find(sought) != std::string::npos)
                return 4;
        return -1;
    }
};

TEST(TextIndex, FindsWhatANaiveSearchFinds) {
    const char* seed = std::getenv("JXC_SEED");
    std::mt19937 random(seed ? static_cast<unsigned>(std::atoi(seed)) : 20261105U);
    const std::u32string letters = U"aB3Ｃ-中重长螺丝钢 ０é";
    const auto text = [&](size_t longest) {
        std::u32string made;
        for (size_t length = random() % (longest + 1); length > 0; --length)
            made += letters[random() % letters.size()];
        return FromCodePoints(made);
    };
    const auto thing = [&] { return IndexedTexts{text(4), text(6), text(8), text(4)}; };
    TextIndex index;
    NaiveSearch naive;
    for (int step = 0; step < 6000; ++step) {
        const auto id = static_cast<std::int64_t>(random() % 500);
        if (random() % 5 == 0) {
            index.Remove(id);
            naive.things.erase(id);
        } else {
            naive.things[id] = thing();
            index.Set(id, naive.things[id]);
        }
        if (step % 4 != 0)
            continue;
        const std::string typed = random() % 3 == 0 ? std::string(1, "abc3zls"[random() % 7]) : text(3);
        const auto expected = naive.Find(typed);
        const size_t most = random() % 20;
        const auto hits = index.Find(typed, most);
        ASSERT_EQ(hits.count, Trim(FoldText(typed)).empty() || most == 0 ? 0 : expected.size()) << typed;
        ASSERT_EQ(hits.ids.size(), std::min(most, expected.size())) << typed;
        const std::string sought = Trim(FoldText(typed));
        for (size_t i = 0; i < hits.ids.size(); ++i) {
            const IndexedTexts& texts = naive.things.at(hits.ids[i]);
            ASSERT_EQ(std::pair(NaiveSearch::Grade(texts, sought), FoldText(texts.code)), expected[i])
                << typed << " " << i;
        }
    }
    EXPECT_EQ(index.Count(), naive.things.size());
}

// Other texts for the same things over and over: what has gone does not fill the memory, and is not found.
TEST(TextIndex, ForgetsWhatWasReplaced) {
    TextIndex index;
    for (int round = 0; round < 200; ++round)
        for (std::int64_t id = 0; id < 100; ++id)
            index.Set(id, {"C" + std::to_string(id), "", std::string(200, 'x') + std::to_string(round), ""});
    EXPECT_EQ(index.Count(), 100U);
    EXPECT_EQ(index.Find("x199", 5).count, 100U);
    EXPECT_EQ(index.Find("x198", 5).count, 0U);
    EXPECT_EQ(index.Find("c42", 5).ids, (std::vector<std::int64_t>{42}));
}

} // namespace

} // namespace jxc::test
