// The datum arrows write two files; none of them may be one that they, or a run, read.
#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::PanelBench;

class ArrowFiles : public PanelBench, public ::testing::WithParamInterface<const char*> {
protected:
    void expectRefused(const std::string& kept, const std::string& unwritten) {
        const std::string before = disk.bytes(kept);
        EXPECT_EQ(faultOf([&] { click(GetParam()); }), 55);
        EXPECT_EQ(disk.bytes(kept), before) << kept << " was written";
        EXPECT_FALSE(disk.has(unwritten)) << unwritten << " was opened before";
    }
};

TEST_P(ArrowFiles, ADataFileThatTheResultLeadsToIsFault55AndStays) {
    state.RecentFiles[1] = "/app/data/a.out";
    disk.putText("/app/data/a.out", "WGS a 37.3 127 1\r\nend\r\n\r\n");
    expectRefused("/app/data/a.out", "/app/kelvo.det");
}

TEST_P(ArrowFiles, ADataFileThatTheDetailLeadsToIsFault55AndStays) {
    state.RecentFiles[1] = "/app/kelvo.det";
    disk.putText("/app/kelvo.det", "WGS a 37.3 127 1\r\nend\r\n\r\n");
    expectRefused("/app/kelvo.det", "/app/kelvo.out");
}

TEST_P(ArrowFiles, KnownPointsThatTheDetailLeadsToAreFault55AndStay) {
    state.CorPath = "/app/kelvo.det";
    disk.putText("/app/kelvo.det", "k 37.3 127 1 37.3 127 1 1\r\n*\r\n*\r\n");
    expectRefused("/app/kelvo.det", "/app/data/a.out");
}

TEST_P(ArrowFiles, KnownPointsThatTheResultLeadsToAreFault55AndStay) {
    state.CorPath = "/app/data/a.out";
    disk.putText("/app/data/a.out", "k 37.3 127 1 37.3 127 1 1\r\n*\r\n*\r\n");
    expectRefused("/app/data/a.out", "/app/kelvo.det");
}

INSTANTIATE_TEST_SUITE_P(BothWays, ArrowFiles, ::testing::Values("cmdW2B", "cmdB2W"),
                         [](const auto& arrow) { return std::string(arrow.param); });

}  // namespace
}  // namespace kelvo
