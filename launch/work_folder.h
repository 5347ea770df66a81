#pragma once

#include <string>
#include <vector>

#include "surface/world.h"

namespace orvane {

// The folder in the documents of the user where the program finds its data and saves characters. Fails without a home.
std::string workFolder();

// What the installed data brought to a work folder, by names of files.
struct Delivery {
  std::vector<std::string> taken;    // newer ones that replaced those of before, of which the user had changed none
  std::vector<std::string> waiting;  // newer ones left where they are installed, for the user had changed something
};

// Makes the folder and copies into it what is missing of the files in `installed`. Newer ones replace those of an
// earlier delivery all together, and only where no file differs from what was delivered; else each is reported as
// waiting, once. Where it fails, the next call goes on.
Delivery deliver(Files& files, const std::string& installed, const std::string& folder);

// What the user is told of it, in French; empty where there is nothing to tell.
std::string wordsOn(const Delivery& delivery, const std::string& installed, const std::string& folder);

}  // namespace orvane
