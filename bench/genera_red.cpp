// Writes a schematic of many elements to try things on:  genera_red ELEMENTS FILE
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "GeneraRed.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "genera_red ELEMENTS FILE\n";
        return 1;
    }
    std::ofstream(argv[2], std::ios::binary) << zel::bench::GeneraRed(std::atoi(argv[1]));
}
