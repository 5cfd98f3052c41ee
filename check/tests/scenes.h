// Whole scenes that are without a fault: those of the examples and the manual, and as many more as a test
// wants.
#pragma once

#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace marlogl::check {

/// The names of design files below a folder on the disk.
std::vector<std::string> design_files(const std::string &folder);

/// Those of the gallery, the manual and README, by names that end as design files do. All paths are relative
/// to the root of the project.
std::map<std::string, std::string> manual_scenes();

/// Random numbers that are the same on every system.
struct Random {
    std::mt19937 engine;

    int below(int most) { return static_cast<int>(engine() % static_cast<unsigned>(most)); }
    int from_to(int low, int high) { return low + below(high - low + 1); }
};

/// Makes scenes of the objects of the gallery: each with other records in another order, moved, turned,
/// renamed, repeated as an instance.
class SceneGenerator {
  public:
    SceneGenerator();

    /// A name that ends as a design file does, and the design; of version 2 for even seeds.
    std::pair<std::string, std::string> scene(unsigned seed) const;

  private:
    std::vector<std::vector<std::string>> objects[2]; // by version; the records of each
};

} // namespace marlogl::check
