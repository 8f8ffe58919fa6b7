// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"
#include "Mutations.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// Runs a fuzz target over every file in the given folders, and then over variations of them.
//
// usage: fuzz_NAME [--seconds N] FOLDER...
//   --seconds N  the time for the variations; the default is no variations
//
// No file is an error, so that a moved folder is noticed. An input that ends the program is written
// to the working folder as NAME-input.

/// A function of the sanitizers, null without them.
extern "C" void __sanitizer_set_death_callback( // NOLINT(clang-diagnostic-reserved-identifier)
    void (*callback)()) __attribute__((weak));

namespace {

using Clock = std::chrono::steady_clock;

std::string program; // name of the program, for the file of the input
std::string input; // the current input

void keepInput()
{
    std::ofstream(program + "-input", std::ios::binary) << input;
}

void keepInputAtSignal(int /*signal*/)
{
    keepInput(); // not signal-safe, but the program ends anyway
    std::_Exit(EXIT_FAILURE);
}

void watchForEnd()
{
    std::signal(SIGABRT, keepInputAtSignal);
    if (__sanitizer_set_death_callback != nullptr)
        __sanitizer_set_death_callback(keepInput);
}

void run()
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

std::vector<std::string> seedsIn(const char* folder)
{
    std::vector<std::string> seeds;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream stream(entry.path(), std::ios::binary);
        seeds.emplace_back(std::istreambuf_iterator<char>(stream),
                           std::istreambuf_iterator<char>());
    }
    return seeds;
}

/// Returns the number of variations run in the time.
int runVariations(const std::vector<std::string>& seeds, std::chrono::seconds duration)
{
    tarsil::fuzz::Mutations mutations(seeds, std::random_device()());
    int count = 0;
    for (const Clock::time_point end = Clock::now() + duration; Clock::now() < end; ++count) {
        input = mutations.next();
        run();
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    program = std::filesystem::path(argv[0]).filename().string();
    std::chrono::seconds duration {0};
    std::vector<std::string> seeds;
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--seconds" && i + 1 < argc) {
            duration = std::chrono::seconds(std::stoi(argv[++i]));
            continue;
        }
        const std::vector<std::string> more = seedsIn(argv[i]);
        seeds.insert(seeds.end(), more.begin(), more.end());
    }
    watchForEnd();
    for (const std::string& seed : seeds) {
        input = seed;
        run();
    }
    std::cout << seeds.size() << " seeds\n";
    if (seeds.empty())
        return EXIT_FAILURE;
    if (duration.count() > 0)
        std::cout << runVariations(seeds, duration) << " variations of them\n";
    return EXIT_SUCCESS;
}
