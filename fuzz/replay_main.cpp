// Replays fuzz inputs outside the fuzz build: each argument is a file, or a
// folder whose files are run in name order; every input goes once through the
// target's LLVMFuzzerTestOneInput. A missing folder holds no inputs. A finding
// aborts, as it does under the fuzzer.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> inputsOf(const fs::path& argument) {
    std::error_code ignored;
    if (!fs::is_directory(argument, ignored))
        return fs::exists(argument, ignored) ? std::vector{argument} : std::vector<fs::path>{};
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(argument))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    if (LLVMFuzzerInitialize != nullptr) LLVMFuzzerInitialize(&argc, &argv);
    std::size_t count = 0;
    for (int k = 1; k < argc; ++k) {
        for (const fs::path& file : inputsOf(argv[k])) {
            std::ifstream in(file, std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
            std::cout << "input " << file.string() << std::endl;
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++count;
        }
    }
    std::cout << "replayed " << count << " inputs" << std::endl;
    return 0;
}
