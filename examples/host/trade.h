#pragma once

#include <string>

// Enters receipts into a company until the person has closed the window.
void Trade(const std::string& company);
