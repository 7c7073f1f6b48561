#include "Fuzz.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

namespace FluidBenchFuzz {

namespace {

std::filesystem::path MakeFolder() {
    const std::filesystem::path inMemory = "/dev/shm";
    std::error_code error;
    const std::filesystem::path parent = std::filesystem::is_directory(inMemory, error)
                                             ? inMemory
                                             : std::filesystem::temp_directory_path();
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::filesystem::path folder = parent / ("fluidbench-fuzz-" + std::to_string(random()));
        if (std::filesystem::create_directory(folder, error)) {
            return folder;
        }
    }
    throw std::runtime_error("No folder can be made in '" + parent.string() + "'");
}

struct WorkingFolder {
    WorkingFolder() = default;
    ~WorkingFolder() {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

    const std::filesystem::path path = MakeFolder();
};

} // namespace

void Require(bool holds, const std::string& promise) {
    if (!holds) {
        throw BrokenPromise(promise);
    }
}

const std::filesystem::path& Folder() {
    static const WorkingFolder folder;
    return folder.path;
}

std::string PathOf(const std::string& name) {
    return (Folder() / name).string();
}

std::string FileWith(const std::string& name, std::string_view content) {
    std::string path = PathOf(name);
    std::ofstream file(path, std::ios_base::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    return path;
}

std::string ReadFile(const std::string& path) {
    const std::ifstream file(path, std::ios_base::binary);
    if (!file.is_open()) {
        throw std::runtime_error("'" + path + "' can't be opened");
    }
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

void WriteSamples(const std::string& folder) {
    std::filesystem::create_directories(folder);
    int number = 0;
    for (const std::string& sample : Samples()) {
        std::ofstream(folder + "/sample-" + std::to_string(number++), std::ios_base::binary)
            << sample;
    }
}

void RemoveFolder() {
    std::error_code error;
    std::filesystem::remove_all(Folder(), error);
}

std::string ProjectFile(const std::string& path) {
    return ReadFile(std::string(FLUIDBENCH_PROJECT_FOLDER) + "/" + path);
}

std::vector<std::string> ProjectFiles(const std::string& folder, std::string_view ending) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::string(FLUIDBENCH_PROJECT_FOLDER) + "/" + folder)) {
        if (entry.is_regular_file() && entry.path().filename().string().ends_with(ending)) {
            paths.push_back(entry.path().string());
        }
    }
    std::ranges::sort(paths);
    std::ranges::transform(paths, paths.begin(), ReadFile);
    return paths;
}

} // namespace FluidBenchFuzz
