// What becomes of texts that were typed and never saved.
#include <chrono>

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using testing::Program;
using testing::WindowBench;
using Shelf = JournalStore::Shelf;

class Journal : public WindowBench {
protected:
    Journal() {
        putConfiguration({"/app/data/a.dat", "/app/data/b.dat"});
        start();
        program->click("mnuBatchEdit");
    }
    [[nodiscard]] std::string kept(Shelf shelf) {
        const auto at = program->services.kept.find(shelf);
        return at == program->services.kept.end() ? "nothing" : at->second.text;
    }
    void ring() {
        ASSERT_TRUE(program->services.ring) << "no alarm is set";
        std::exchange(program->services.ring, nullptr)();
    }
    void leave(Shelf shelf, const std::string& path, const std::string& text) {
        program->services.left[shelf].push_back(
            {.text = {.path = path, .text = text, .since = "yesterday"}, .name = text});
    }
    [[nodiscard]] frmKelvo& window() { return program->window; }
};

TEST_F(Journal, KeepsWhatWasTypedAFewSecondsLater) {
    program->type("Richtxt", "first\r\n");
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
    EXPECT_GE(program->services.alarmIn, 1s);
    EXPECT_LE(program->services.alarmIn, 5s);
    ring();
    EXPECT_EQ(kept(Shelf::OnView), "first\r\n");
    EXPECT_EQ(program->services.kept[Shelf::OnView].path, "/app/data/a.dat");
    EXPECT_EQ(program->services.kept[Shelf::OnView].since, "2004-06-07 09:30:00");
}

TEST_F(Journal, IsNotPutOffByFurtherTyping) {
    program->type("Richtxt", "first");
    const auto first = std::exchange(program->services.ring, nullptr);
    program->type("Richtxt", "second");
    EXPECT_FALSE(program->services.ring) << "the alarm was set anew";
    first();
    EXPECT_EQ(kept(Shelf::OnView), "second");
    program->type("Richtxt", "third");
    ring();
    EXPECT_EQ(kept(Shelf::OnView), "third");
}

TEST_F(Journal, LeavesMoreTimeBetweenLongTexts) {
    program->type("Richtxt", std::string(8U << 20U, 'x'));
    EXPECT_GE(program->services.alarmIn, 10s);
}

TEST_F(Journal, IsGoneAfterASave) {
    program->type("Richtxt", "first\r\n");
    ring();
    program->click("cmdSave");
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
    EXPECT_FALSE(program->services.ring);
    EXPECT_FALSE(window().textIsUnsaved());
}

TEST_F(Journal, IsGoneAfterASaveOfTheFileMenuAndASaveUnderAnotherName) {
    program->type("Richtxt", "first\r\n");
    ring();
    program->file(4);
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
    program->type("Richtxt", "second\r\n");
    ring();
    program->queueDialog("/app/data/c.dat");
    program->click("cmdSaveAs");
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
}

TEST_F(Journal, StaysAfterASaveThatFailed) {
    program->type("Richtxt", "first\r\n");
    ring();
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "replace") raise(Fault::DiskFull);
    };
    EXPECT_EQ(testing::faultOf([&] { program->click("cmdSave"); }), 61);
    EXPECT_EQ(kept(Shelf::OnView), "first\r\n");
    EXPECT_TRUE(window().textIsUnsaved());
}

TEST_F(Journal, KeepsNothingWhereTheTextIsThatOfTheFileAgain) {
    const std::string before = program->text("Richtxt");
    program->type("Richtxt", "first\r\n");
    ring();
    program->type("Richtxt", before);
    ring();
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
}

TEST_F(Journal, TriesAgainWhereThereWasNoRoom) {
    program->services.journalIsFull = true;
    program->type("Richtxt", "first");
    ring();
    EXPECT_FALSE(window().keepUnsavedText());
    program->services.journalIsFull = false;
    ring();
    EXPECT_EQ(kept(Shelf::OnView), "first");
}

TEST_F(Journal, LoadingATextKeepsNothing) {
    EXPECT_FALSE(program->services.ring);
    EXPECT_FALSE(window().textIsUnsaved());
    EXPECT_FALSE(window().canBringBackText());
}

// The ways by which a text leaves the view without a question.
class Discarding : public Journal, public ::testing::WithParamInterface<const char*> {
protected:
    void discardBy(const std::string& way) {
        if (way == "close") program->click("cmdClose");
        if (way == "run") program->click("mnuBatchGo");
        if (way == "load") program->click("mnuCorrShow");
        if (way == "recent") program->file(8);
    }
};

TEST_P(Discarding, IsSilentAndCanBeTakenBack) {
    disk.putText("/app/kelvo.det", "detail\r\n");
    disk.putText("/app/data/a.dat", "*\r\nend\r\n\r\n");
    program->click("mnuBatchEdit");
    program->type("Richtxt", "typed\r\n");
    ring();
    (void)program->told();
    discardBy(GetParam());
    EXPECT_TRUE(program->told().empty());
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
    EXPECT_EQ(kept(Shelf::Discarded), "typed\r\n");

    ASSERT_TRUE(window().canBringBackText());
    window().bringBackText();
    EXPECT_EQ(program->text("Richtxt"), "typed\r\n");
    EXPECT_EQ(program->caption("frmeFile"), "/app/data/a.dat");
    EXPECT_TRUE(program->visible("frmeFile"));
    EXPECT_TRUE(program->visible("Richtxt"));
    EXPECT_TRUE(window().textIsUnsaved());
    EXPECT_EQ(kept(Shelf::OnView), "typed\r\n");
    EXPECT_EQ(kept(Shelf::Discarded), "nothing");
    EXPECT_FALSE(window().canBringBackText());

    program->click("cmdSave");
    EXPECT_EQ(disk.text("/app/data/a.dat"), "typed\r\n");
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
}

INSTANTIATE_TEST_SUITE_P(Ways, Discarding, ::testing::Values("close", "run", "load", "recent"),
                         [](const auto& way) { return std::string(way.param); });

TEST_F(Journal, BringingBackPutsTheUnsavedTextOnViewInItsPlace) {
    program->type("Richtxt", "one");
    program->click("cmdClose");
    program->click("mnuBatchEdit");
    program->type("Richtxt", "two");
    window().bringBackText();
    EXPECT_EQ(program->text("Richtxt"), "one");
    EXPECT_EQ(kept(Shelf::Discarded), "two");
    window().bringBackText();
    EXPECT_EQ(program->text("Richtxt"), "two");
}

TEST_F(Journal, ATextThatIsBroughtBackOverTheResultHasNoPicture) {
    program->type("Richtxt", "one");
    program->click("cmdClose");
    program->click("mnuBatchGo");
    ASSERT_TRUE(program->at("cmdShow").enabled());
    window().bringBackText();
    EXPECT_FALSE(program->at("cmdShow").enabled());
}

TEST_F(Journal, AClosedTextIsNotKeptAsOneOnView) {
    program->type("Richtxt", "one");
    program->click("cmdClose");
    window().keepUnsavedText();
    EXPECT_EQ(kept(Shelf::OnView), "nothing");
    EXPECT_EQ(kept(Shelf::Discarded), "one");
}

TEST_F(Journal, ADiscardedTextThatIsSavedAfterAllIsForgotten) {
    program->type("Richtxt", "one");
    program->click("cmdClose");
    program->file(4);
    EXPECT_FALSE(window().canBringBackText());
    EXPECT_EQ(kept(Shelf::Discarded), "nothing");
}

TEST_F(Journal, ClosingTheWindowKeepsWhatIsUnsaved) {
    program->type("Richtxt", "one");
    program->at("mnuFileItem").clickEntry(program->at("mnuFileItem").highestIndex());
    EXPECT_TRUE(program->services.ended);
    EXPECT_EQ(kept(Shelf::OnView), "one");
}

TEST_F(Journal, OffersWhatAnEarlierProgramHadOnView) {
    EXPECT_FALSE(window().waitingText().has_value());
    leave(Shelf::OnView, "/job/x.dat", "newer");
    leave(Shelf::OnView, "/job/y.dat", "older");
    ASSERT_TRUE(window().waitingText().has_value());
    EXPECT_EQ(window().waitingText()->text, "newer");
    EXPECT_EQ(window().waitingText()->since, "yesterday");
    window().bringBackWaitingText();
    EXPECT_EQ(program->text("Richtxt"), "newer");
    EXPECT_EQ(program->caption("frmeFile"), "/job/x.dat");
    EXPECT_EQ(kept(Shelf::OnView), "newer");
    EXPECT_EQ(window().waitingText()->text, "older");
    window().putWaitingTextAside();
    EXPECT_FALSE(window().waitingText().has_value());
    ASSERT_TRUE(window().canBringBackText());
    window().bringBackText();
    EXPECT_EQ(program->text("Richtxt"), "older");
}

TEST_F(Journal, AnOfferThatCannotBeKeptIsMadeAgain) {
    leave(Shelf::OnView, "/job/x.dat", "one");
    program->services.journalIsFull = true;
    window().bringBackWaitingText();
    EXPECT_EQ(program->text("Richtxt"), "one");
    EXPECT_TRUE(window().waitingText().has_value());
}

TEST_F(Journal, TheLastDiscardedTextOfAnEarlierProgramCanBeTakenBack) {
    leave(Shelf::Discarded, "/job/x.dat", "one");
    EXPECT_FALSE(window().waitingText().has_value()) << "it was discarded: nobody is asked";
    ASSERT_TRUE(window().canBringBackText());
    EXPECT_EQ(kept(Shelf::Discarded), "one");
    EXPECT_TRUE(program->services.left[Shelf::Discarded].empty());
    window().bringBackText();
    EXPECT_EQ(program->text("Richtxt"), "one");
}

TEST_F(Journal, OfSeveralEarlierProgramsNoDiscardedTextGoesUnseen) {
    leave(Shelf::Discarded, "/job/x.dat", "newer");
    leave(Shelf::Discarded, "/job/y.dat", "older");
    ASSERT_TRUE(window().canBringBackText());
    window().bringBackText();
    EXPECT_EQ(program->text("Richtxt"), "newer");
    ASSERT_EQ(program->services.left[Shelf::Discarded].size(), 1U);
    EXPECT_EQ(program->services.left[Shelf::Discarded].front().text.text, "older");
}

TEST_F(Journal, ADiscardedTextOfAnEarlierProgramStaysWhereThisOneHasNoRoomForIt) {
    leave(Shelf::Discarded, "/job/x.dat", "one");
    program->services.journalIsFull = true;
    ASSERT_TRUE(window().canBringBackText());
    EXPECT_EQ(program->services.left[Shelf::Discarded].size(), 1U);
}

TEST_F(Journal, AnOfferThatIsPutAsideAndCannotBeKeptStays) {
    leave(Shelf::OnView, "/job/x.dat", "one");
    program->services.journalIsFull = true;
    window().putWaitingTextAside();
    EXPECT_EQ(program->services.left[Shelf::OnView].size(), 1U);
}

TEST_F(Journal, ASessionWithoutTypingKeepsNothing) {
    program->click("mnuBatchGo");
    program->click("cmdClose");
    program->at("mnuFileItem").clickEntry(program->at("mnuFileItem").highestIndex());
    EXPECT_TRUE(program->services.kept.empty());
}

}  // namespace
}  // namespace kelvo
