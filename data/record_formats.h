#pragma once

#include <functional>
#include <memory>

#include "data/record_line.h"
#include "data/records.h"
#include "surface/world.h"

// What a line of each file holds, field by field. Each takes a whole line apart, or fails as the line does.
namespace orvane {

// Finds a technique by its key, empty where there is none.
using TechnicFinder = std::function<std::shared_ptr<clsMartialTechnic>(std::int16_t iKey)>;

std::shared_ptr<clsEthnie> readEthnie(RecordLine& line);
std::shared_ptr<clsGrade> readGrade(RecordLine& line);
std::shared_ptr<clsProfil> readProfil(RecordLine& line, Dialogs& dialogs);
std::shared_ptr<clsSkill> readSkill(RecordLine& line);
std::shared_ptr<clsMutation> readMutation(RecordLine& line, Dialogs& dialogs);
std::shared_ptr<clsMartialTechnic> readMartialTechnic(RecordLine& line);
// Warns of each technique that is not found, and leaves it out.
std::shared_ptr<clsMartialArt> readMartialArt(RecordLine& line, const TechnicFinder& technic, Dialogs& dialogs);
std::shared_ptr<clsDistrict> readDistrict(RecordLine& line, Dialogs& dialogs);

}  // namespace orvane
