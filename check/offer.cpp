#include "check/offer.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "check/trial.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::pair<std::string_view, std::string_view> words[] = {{"Voiture", "voiture"},
                                                                   {"Voiture", "auto"},
                                                                   {"Voiture", "automobile"},
                                                                   {"Moto", "moto"},
                                                                   {"Hélicoptère", "hélicoptère"}};

// A blank before and behind each word.
std::string separatedWords(const std::string& text) {
  std::string separated = " " + lowerCase(text) + " ";
  for (char& c : separated)
    if (std::string_view("'()-,/").find(c) != std::string_view::npos) c = ' ';
  return separated;
}

}  // namespace

// The window applies another profile first, which suits any data.
Offer offerOf(const ReferenceData& data, Pictures& pictures) {
  ReferenceData tried = leastData();
  for (const auto& profile : data.colProfil) tried.colProfil.Add(profile);
  Trial trial(std::move(tried), pictures);
  Offer offer;
  const auto& profiles = trial.window().cmbProfil;
  for (int i = 1; i < profiles.ListCount(); ++i) offer.profiles.push_back(profiles.ItemData(i) - 1);
  const auto& vehicles = trial.window().cmbVehicle;
  for (int i = 0; i < vehicles.ListCount(); ++i) offer.vehicles.push_back({vehicles.List(i), vehicles.ItemData(i)});
  return offer;
}

bool isAbout(const std::string& skillName, const Vehicle& vehicle) {
  const std::string separated = separatedWords(skillName);
  return std::any_of(std::begin(words), std::end(words), [&](const auto& known) {
    return known.first == vehicle.name && separated.find(" " + std::string(known.second) + " ") != std::string::npos;
  });
}

}  // namespace orvane
