#include "common/application_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

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

#ifndef _WIN32
// A variable of the environment for as long as a test lasts.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* const old = std::getenv(name)) old_ = old;
        if (value == nullptr)
            unsetenv(name);
        else
            setenv(name, value, 1);
    }
    ~Variable() {
        if (old_)
            setenv(name_, old_->c_str(), 1);
        else
            unsetenv(name_);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    std::optional<std::string> old_;
};

TEST(ApplicationFolder, AVariableThatIsEmptyIsOneThatIsMissing) {
    const Variable home("HOME", "/home/kim");
    for (const char* const none : {"", static_cast<const char*>(nullptr)}) {
        const Variable data("XDG_DATA_HOME", none);
        EXPECT_EQ(findApplicationFolder(), "/home/kim/.local/share/Kelvo");
    }
    const Variable data("XDG_DATA_HOME", "/data/kim");
    EXPECT_EQ(findApplicationFolder(), "/data/kim/Kelvo");
}
#endif

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
