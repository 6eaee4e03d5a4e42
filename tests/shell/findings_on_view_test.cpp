// What an editor marks in a data file.
#include "shell/findings_on_view.h"

#include <gtest/gtest.h>

#include "common/run_time_fault.h"
#include "support/memory_disk.h"

namespace kelvo {
namespace {

using testing::MemoryDisk;

constexpr const char* kSlip = "WGS A 37.7733 126.3229 0\r\nend\r\n\r\n";
constexpr const char* kCorrected = "* x\r\nCORRECTION\r\nWGS A 37.3533 126.3229 0\r\nend\r\n\r\n";

TEST(FindingsOnView, MarksTheWordOfADataFileInAnyCaseOfItsName) {
    MemoryDisk disk;
    for (const char* name : {"/a.dat", "/a.DAT"}) {
        const auto found = findingsOnView(name, kSlip, "/kelvo.cor", disk);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].line, 1);
        EXPECT_EQ(found[0].column, 7);
        EXPECT_EQ(found[0].length, 7);
    }
}

TEST(FindingsOnView, LeavesOtherFilesAlone) {
    MemoryDisk disk;
    EXPECT_TRUE(findingsOnView("/a.out", kSlip, "/kelvo.cor", disk).empty());
    EXPECT_TRUE(findingsOnView("", kSlip, "/kelvo.cor", disk).empty());
}

TEST(FindingsOnView, PutsWhatIsWrongWithTheKnownPointsAtTheLineThatUsesThem) {
    MemoryDisk disk;
    disk.putText("/kelvo.cor",
                 "K 37.35286118 126.32345468 45.7 37.3518607 126.32419061 67.6 1\r\n\r\n\r\n");
    const auto found = findingsOnView("/a.dat", kCorrected, "/kelvo.cor", disk);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].line, 2);
    EXPECT_EQ(found[0].text.substr(0, 9), "kelvo.cor");
}

TEST(FindingsOnView, TakesKnownPointsThatCantBeReadForMissing) {
    MemoryDisk disk;
    disk.before = [](const std::string&, const std::string&) { raise(Fault::PermissionDenied); };
    const auto found = findingsOnView("/a.dat", kCorrected, "/kelvo.cor", disk);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].line, 2);
}

}  // namespace
}  // namespace kelvo
