// write_scenes FOLDER: writes the scenes of the manual and 50 random ones as design files.
#include "scenes.h"

#include <fstream>

int main(int, char **argv)
{
    using namespace marlogl::check;
    const auto write = [folder = std::string(argv[1])](const std::string &name, const std::string &scene) {
        std::ofstream(folder + '/' + name, std::ios::binary) << scene;
    };
    for (const auto &[name, scene] : manual_scenes())
        write(name, scene);
    const SceneGenerator generator;
    for (unsigned seed = 1; seed <= 50; ++seed) {
        const auto [name, scene] = generator.scene(seed);
        write("random" + std::to_string(seed) + name, scene);
    }
}
