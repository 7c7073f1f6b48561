#include "Scratch.h"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

namespace FluidBenchBenchmark {

namespace {

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name =
            (std::filesystem::temp_directory_path() / "fluidbench-benchmark-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("No temporary folder can be made");
        }
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace

const std::filesystem::path& ScratchFolder() {
    static const TemporaryFolder folder;
    return folder.Path();
}

} // namespace FluidBenchBenchmark
