#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

#include "synthetic_database.h"

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: make_database RECORDS BYTES FILE\n";
        return EXIT_FAILURE;
    }
    try {
        const std::string text = quillomat::synthetic_database(std::stoi(argv[1]), std::stoul(argv[2]));
        std::ofstream file(argv[3], std::ios::binary);
        file.write(text.data(), static_cast<std::streamsize>(text.size())).flush();
        if (!file) {
            std::cerr << "make_database: cannot write " << argv[3] << '\n';
            return EXIT_FAILURE;
        }
    } catch (const std::exception& error) {
        std::cerr << "make_database: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
