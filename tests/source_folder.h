// Where the sources lie that a test reads.
#pragma once

#include <filesystem>

std::filesystem::path SourceFolder();
