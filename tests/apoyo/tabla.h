// Tables of cases as plain text, for whoever adds a case without touching the code of a test.
#pragma once

#include <string>
#include <vector>

namespace corvanda::pruebas {

/// The rows of a file below tests/, each of so many fields parted by ";", without the blanks around
/// them; fields that are left out at the end are empty. Empty lines and what begins with # do not
/// count. A row of more fields, and a table without a row, fail the test.
std::vector<std::vector<std::string>> Tabla(const std::string& archivo, std::size_t campos);

}  // namespace corvanda::pruebas
