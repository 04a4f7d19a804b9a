#pragma once
// Runs the reference host program as a user would, in a temporary directory of its own with its
// own home and UTC, and keeps what it exits with and what it writes: the shared set-up of the
// whole-program tests.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

extern char** environ;

struct Outcome
{
    int nExit = -1;
    std::string Out;
    std::string Err;
};

inline std::string ReadAll(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

class ProgramTest : public ::testing::Test
{
protected:
    explicit ProgramTest(const char* name) : Name(name) {}

    void SetUp() override
    {
        std::string pattern =
            (std::filesystem::temp_directory_path() / (Name + "-XXXXXX")).string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        Dir = pattern;
    }
    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(Dir, ignored);
    }

    // Runs the program with `args` in the test's environment, its own home and UTC, with
    // `unset` taken out of the environment; waits for it to end.
    // `program`, when given, runs instead of the planetarium with `args` after it.
    Outcome Run(const std::vector<std::string>& args, const std::vector<std::string>& extra = {},
                const std::vector<std::string>& unset = {"DISPLAY", "WAYLAND_DISPLAY"},
                const std::vector<std::string>& program = {})
    {
        std::vector<std::string> env = {"ORBISCOPE_HOME=" + (Dir / "home").string(), "TZ=UTC"};
        env.insert(env.end(), extra.begin(), extra.end());
        for (char** e = environ; *e; ++e) {
            const std::string entry = *e;
            const std::string name = entry.substr(0, entry.find('='));
            bool dropped = name == "ORBISCOPE_HOME" || name == "TZ";
            for (const std::string& u : unset) {
                dropped = dropped || name == u;
            }
            for (const std::string& x : extra) {
                dropped = dropped || name == x.substr(0, x.find('='));
            }
            if (!dropped) {
                env.push_back(entry);
            }
        }
        std::vector<std::string> argv = program;
        if (argv.empty()) {
            argv.push_back(ORBISCOPE_APP);
        }
        argv.insert(argv.end(), args.begin(), args.end());
        std::vector<char*> cargv;
        for (std::string& a : argv) {
            cargv.push_back(a.data());
        }
        cargv.push_back(nullptr);
        std::vector<char*> cenv;
        for (std::string& e : env) {
            cenv.push_back(e.data());
        }
        cenv.push_back(nullptr);

        const std::filesystem::path out = Dir / "stdout.txt";
        const std::filesystem::path err = Dir / "stderr.txt";
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(),
                                         O_WRONLY | O_CREAT | O_TRUNC, 0644);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(),
                                         O_WRONLY | O_CREAT | O_TRUNC, 0644);
        pid_t pid = 0;
        Outcome outcome;
        if (posix_spawnp(&pid, cargv[0], &actions, nullptr, cargv.data(), cenv.data()) == 0) {
            int status = 0;
            ::waitpid(pid, &status, 0);
            outcome.nExit = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
        posix_spawn_file_actions_destroy(&actions);
        outcome.Out = ReadAll(out);
        outcome.Err = ReadAll(err);
        return outcome;
    }

    std::filesystem::path Dir;

private:
    std::string Name;
};
