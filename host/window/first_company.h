// A new user's way by keys alone, from nothing to the first approved document: a company, two products, a supplier and a
// receipt of both. docs/first-company.md tells it.
#pragma once

#include <string>
#include <vector>

#include <QString>

namespace jxc {

class MainWindow;

struct FirstCompanyStage {
    std::string name;
    int keys; // pressed in it
};

// Plays it on the window, which is shown and stands without a company; the company's file is made in the folder that the
// window offers. Into `pictures`, "" for none, go first-1.png, first-2.png ... Returns the keys of each stage; a
// window that does not do what it is told is a std::runtime_error.
std::vector<FirstCompanyStage> PlayFirstCompany(MainWindow& window, const QString& pictures);

} // namespace jxc
