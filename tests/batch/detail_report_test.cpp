// The layout of kelvo.det, row by row.
#include "batch/detail_report.h"

#include <gtest/gtest.h>

#include "support/memory_disk.h"

namespace kelvo {
namespace {

TEST(DetailReport, EveryRowOfACorrectionBeginsWithItsOwnName) {
    testing::MemoryDisk disk;
    TextWriter det(disk, "/kelvo.det");
    DetailReport report(det, AngleForm::Degrees);
    report.correction("A1", {}, 0);
    report.correction("A2", {}, 0);
    det.close();
    const std::string rows = disk.text("/kelvo.det");
    const std::size_t end = rows.find("\r\n");
    ASSERT_EQ(rows.size(), 2 * (end + 2)) << rows;
    EXPECT_TRUE(rows.starts_with("A1       ")) << rows;
    EXPECT_EQ(rows.substr(end + 4), rows.substr(2, end)) << "but for the name";
    EXPECT_EQ(rows.substr(end + 2, 2), "A2");
}

}  // namespace
}  // namespace kelvo
