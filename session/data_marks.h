#pragma once

#include <string>
#include <vector>

#include "surface/world.h"

// Which data a session was made with, in comments at its head, or where a script without them is gone on with.
namespace orvane {

// One comment for each of the files, whole lines.
std::string dataMarks(Files& files);
bool hasDataMarks(const std::string& session);
// The names of the files that are not what the comments of a session say of them. None where it says nothing.
std::vector<std::string> changedData(const std::string& session, Files& files);
// The session with the comments as they would be now, in the place of the former ones.
std::string withDataMarks(const std::string& session, Files& files);

}  // namespace orvane
