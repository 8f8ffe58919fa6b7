#include "FuzzTarget.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// Runs a fuzz target over every file of the folders given. No file at all is an error, so that a
// moved folder is noticed.
int main(int argc, char** argv)
{
    int files = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream stream(entry.path(), std::ios::binary);
            const std::string bytes {std::istreambuf_iterator<char>(stream), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
            ++files;
        }
    }
    std::cout << files << " seeds\n";
    return files > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
