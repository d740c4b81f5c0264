// Writes the seed corpus of every fuzz target: fuzz/corpus/<target>/seed_<n>.
#include "FuzzSeeds.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <sys/stat.h>

int main(int argc, char** argv)
{
    const std::string strRoot = argc > 1 ? argv[1] : "corpus";
    ::mkdir(strRoot.c_str(), 0755);
    for (const auto& rEntry : ZelFuzz::SeedRegistry())
    {
        const std::string strDir = strRoot + "/" + rEntry.strTarget;
        ::mkdir(strDir.c_str(), 0755);
        const std::vector<std::string> vecSeeds = rEntry.fnMake();
        for (size_t ulIdx = 0; ulIdx < vecSeeds.size(); ++ulIdx)
        {
            std::ofstream ofs(strDir + "/seed_" + std::to_string(ulIdx), std::ios::binary);
            ofs.write(vecSeeds[ulIdx].data(), static_cast<std::streamsize>(vecSeeds[ulIdx].size()));
        }
        std::cout << rEntry.strTarget << ": " << vecSeeds.size() << " seeds\n";
    }
    return 0;
}
