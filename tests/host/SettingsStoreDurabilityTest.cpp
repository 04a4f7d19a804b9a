// The settings store under processes that die or run side by side: a writer killed in the
// middle of a stream of writes, a reader beside a writer, two writers at once.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "host/ScopedHome.h"
#include "host/SettingsStore.h"
#include "platform/Registry.h"

namespace {

// The text written as value number `i`: its own number and length at the front, then a
// pattern that depends on both, so that any cut or mix of two values shows. Lengths run from
// 40 bytes to several database pages.
std::string PatternValue(int i)
{
    const std::size_t length = 40 + static_cast<std::size_t>(i) * 7919 % 9000;
    std::string text = std::to_string(i) + ":" + std::to_string(length) + ":";
    for (std::size_t k = 0; text.size() < length; ++k) {
        text += static_cast<char>('a' + (static_cast<std::size_t>(i) * 31 + k) % 26);
    }
    return text;
}

// True when `text` is exactly some PatternValue; `number` gets its number.
bool IsWholePattern(const std::string& text, int& number)
{
    std::size_t colon = text.find(':');
    if (colon == std::string::npos || colon == 0 || colon > 9) {
        return false;
    }
    number = std::stoi(text.substr(0, colon));
    return text == PatternValue(number);
}

// Where value `i` goes: a new subkey every 25 values, so key creation is part of the stream.
std::string KeyPath(int i)
{
    return "SOFTWARE\\Durability\\Group" + std::to_string(i / 25);
}

LONG WriteValue(int i)
{
    HKEY key = nullptr;
    LONG result = RegCreateKeyExA(HKEY_LOCAL_MACHINE, KeyPath(i).c_str(), 0, nullptr, 0,
                                  KEY_ALL_ACCESS, nullptr, &key, nullptr);
    if (result != ERROR_SUCCESS) {
        return result;
    }
    std::string text = PatternValue(i);
    result = RegSetValueExA(key, ("Value" + std::to_string(i)).c_str(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(text.c_str()),
                            static_cast<DWORD>(text.size() + 1));
    RegCloseKey(key);
    return result;
}

// The value `i` as stored, "<missing>", or "<torn>" when it does not end in its zero.
std::string ReadValue(int i)
{
    HKEY key = nullptr;
    std::vector<BYTE> data(16384);
    DWORD size = static_cast<DWORD>(data.size());
    LONG found = RegOpenKeyExA(HKEY_LOCAL_MACHINE, KeyPath(i).c_str(), 0, KEY_READ, &key);
    if (found == ERROR_SUCCESS) {
        found = RegQueryValueExA(key, ("Value" + std::to_string(i)).c_str(), nullptr, nullptr,
                                 data.data(), &size);
        RegCloseKey(key);
    }
    if (found != ERROR_SUCCESS) {
        return "<missing>";
    }
    return size > 0 && data[size - 1] == 0
               ? std::string(reinterpret_cast<const char*>(data.data()), size - 1)
               : "<torn>";
}

// Runs `body` in a child process that never returns into the test framework.
template <typename Body>
pid_t Spawn(Body body)
{
    // Parent and child must not share a database connection.
    CloseRegistryStore();
    pid_t child = ::fork();
    if (child == 0) {
        int code = body();
        CloseRegistryStore();
        ::_exit(code);
    }
    return child;
}

int ExitCode(pid_t child)
{
    int status = 0;
    if (::waitpid(child, &status, 0) != child) {
        return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

TEST(SettingsStoreDurability, AKilledWriterLosesNothingItHadWritten)
{
    ScopedHome home;
    int confirmed = 0; // values 0 .. confirmed - 1 were reported written
    for (int round = 0; round < 4; ++round) {
        int channel[2];
        ASSERT_EQ(::pipe(channel), 0);
        const int first = confirmed;
        pid_t writer = Spawn([&] {
            ::close(channel[0]);
            for (int i = first; i < first + 100000; ++i) {
                if (WriteValue(i) != ERROR_SUCCESS) {
                    return 2;
                }
                // Only after the write returned does the value count as written.
                if (::write(channel[1], &i, sizeof i) != sizeof i) {
                    return 3;
                }
            }
            return 0;
        });
        ASSERT_GT(writer, 0);
        ::close(channel[1]);

        // Let it write a while, a different number of values each round, then kill it
        // wherever it is.
        const int target = first + 120 + round * 70;
        int last = first - 1;
        auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (last < target && std::chrono::steady_clock::now() < deadline) {
            pollfd wait{channel[0], POLLIN, 0};
            if (::poll(&wait, 1, 1000) > 0) {
                int i;
                if (::read(channel[0], &i, sizeof i) != sizeof i) {
                    break;
                }
                last = i;
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(137 * (round + 1)));
        ASSERT_EQ(::kill(writer, SIGKILL), 0);
        EXPECT_EQ(ExitCode(writer), 128 + SIGKILL) << "the writer stopped before the kill";
        int i;
        while (::read(channel[0], &i, sizeof i) == sizeof i) {
            last = i; // reports that were on their way when it died
        }
        ::close(channel[0]);
        ASSERT_GE(last, target) << "round " << round;
        confirmed = last + 1;

        // Every value reported reads back whole, after every kill so far.
        for (int v = 0; v < confirmed; ++v) {
            ASSERT_EQ(ReadValue(v), PatternValue(v)) << "value " << v << ", round " << round;
        }
        // The value in flight at the kill is either absent or whole.
        std::string inFlight = ReadValue(confirmed);
        EXPECT_TRUE(inFlight == "<missing>" || inFlight == PatternValue(confirmed)) << inFlight;
        if (inFlight != "<missing>") {
            ++confirmed;
        }
        CloseRegistryStore();
    }
    SettingsStore check(home.File("registry.db"));
    EXPECT_TRUE(check.CheckIntegrity());
}

TEST(SettingsStoreDurability, AReaderBesideAWriterOnlySeesWholeValues)
{
    ScopedHome home;
    ASSERT_EQ(WriteValue(0), ERROR_SUCCESS);
    const int kVersions = 600;

    // The reader reads one value over and over while the parent rewrites it; every read
    // must be one whole version, and versions never go backwards.
    pid_t reader = Spawn([&] {
        HKEY key = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, KeyPath(0).c_str(), 0, KEY_READ, &key) !=
            ERROR_SUCCESS) {
            return 2;
        }
        int newest = 0;
        auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (newest < kVersions - 1 && std::chrono::steady_clock::now() < deadline) {
            std::vector<BYTE> data(16384);
            DWORD size = static_cast<DWORD>(data.size());
            if (RegQueryValueExA(key, "Current", nullptr, nullptr, data.data(), &size) !=
                ERROR_SUCCESS) {
                continue; // not written yet
            }
            int number = -1;
            std::string text(reinterpret_cast<const char*>(data.data()), size ? size - 1 : 0);
            if (!IsWholePattern(text, number)) {
                return 3;
            }
            if (number < newest) {
                return 4;
            }
            newest = number;
        }
        return newest == kVersions - 1 ? 0 : 5;
    });
    ASSERT_GT(reader, 0);

    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, KeyPath(0).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                              nullptr, &key, nullptr),
              ERROR_SUCCESS);
    for (int version = 0; version < kVersions; ++version) {
        std::string text = PatternValue(version);
        ASSERT_EQ(RegSetValueExA(key, "Current", 0, REG_SZ,
                                 reinterpret_cast<const BYTE*>(text.c_str()),
                                 static_cast<DWORD>(text.size() + 1)),
                  ERROR_SUCCESS);
    }
    EXPECT_EQ(ExitCode(reader), 0) << "3: torn value, 4: went backwards, 5: never saw the last";
    CloseRegistryStore();
}

TEST(SettingsStoreDurability, TwoWritersAtOnceBothLand)
{
    ScopedHome home;
    const int kEach = 150;
    auto writeRange = [](int from) {
        return [from] {
            for (int i = from; i < from + kEach; ++i) {
                if (WriteValue(i) != ERROR_SUCCESS) {
                    return 2;
                }
            }
            return 0;
        };
    };
    pid_t one = Spawn(writeRange(0));
    pid_t two = Spawn(writeRange(10000));
    EXPECT_EQ(ExitCode(one), 0);
    EXPECT_EQ(ExitCode(two), 0);
    for (int i = 0; i < kEach; ++i) {
        ASSERT_EQ(ReadValue(i), PatternValue(i)) << i;
        ASSERT_EQ(ReadValue(10000 + i), PatternValue(10000 + i)) << i;
    }
    CloseRegistryStore();
}
