#include "common/application_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/run_time_fault.h"

namespace kelvo {
namespace {

TEST(ApplicationFolder, IsTheProgramsOwnFolderForAPortableCopy) {
    const FolderChoice choice{.programFolder = "/opt/kelvo/",
                              .dataStandsBeside = true,
                              .dataHome = "/home/kim/share",
                              .home = "/home/kim"};
    EXPECT_EQ(chooseApplicationFolder(choice), "/opt/kelvo");
}

TEST(ApplicationFolder, IsKelvoInTheUsersDataFolder) {
    const FolderChoice choice{.programFolder = "/usr/bin",
                              .dataStandsBeside = false,
                              .dataHome = "/home/kim/share/",
                              .home = "/home/kim"};
    EXPECT_EQ(chooseApplicationFolder(choice), "/home/kim/share/Kelvo");
}

TEST(ApplicationFolder, FallsBackToTheHomeFolder) {
    FolderChoice choice{.programFolder = "/usr/bin",
                        .dataStandsBeside = false,
                        .dataHome = std::nullopt,
                        .home = "/home/kim"};
    EXPECT_EQ(chooseApplicationFolder(choice), "/home/kim/.local/share/Kelvo");
    choice.dataHome = "relative/share";
    EXPECT_EQ(chooseApplicationFolder(choice), "/home/kim/.local/share/Kelvo");
}

TEST(ApplicationFolder, StandsBesideTheProgramWhereThereIsNoHome) {
    const FolderChoice choice{.programFolder = "/usr/bin",
                              .dataStandsBeside = false,
                              .dataHome = std::nullopt,
                              .home = std::nullopt};
    EXPECT_EQ(chooseApplicationFolder(choice), "/usr/bin");
}

TEST(ApplicationFolder, IsMadeWithItsFolderDataAndCanBeMadeAgain) {
    const std::filesystem::path folder =
        std::filesystem::path(::testing::TempDir()) / "kelvo_application_folder" / "한글";
    std::filesystem::remove_all(folder.parent_path());
    makeApplicationFolder(folder.string());
    EXPECT_TRUE(std::filesystem::is_directory(folder / "data"));
    EXPECT_NO_THROW(makeApplicationFolder(folder.string()));
    std::filesystem::remove_all(folder.parent_path());
}

TEST(ApplicationFolder, ThatCannotBeMadeIsAFault) {
    try {
        makeApplicationFolder("/dev/null/Kelvo");
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.fault(), Fault::PathNotFound);
    }
}

}  // namespace
}  // namespace kelvo
