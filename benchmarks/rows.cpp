#include "benchmarks/rows.h"

#include <malloc.h>
#include <memory>

#include <QAbstractButton>

#include "benchmarks/character.h"
#include "benchmarks/cost.h"
#include "benchmarks/process.h"
#include "benchmarks/screen_run.h"
#include "benchmarks/yardsticks.h"
#include "data/load_data.h"

namespace orvane::bench {
namespace {

constexpr int few = 1000;  // records
constexpr int many = 32000;
constexpr double mebibyte = 1024 * 1024;
constexpr double windowBytes = 4.5 * mebibyte;
constexpr double acts = 0.001;  // seconds
constexpr double frame = 0.016;
constexpr double sheet = 1.0 / 150;

// --- Processes

using Command = std::vector<std::string>;

ProcessCost runIn(const Path& folder, const Command& command) {
  const Inside inside(folder);
  return runProcess(command);
}

double secondsIn(const Path& folder, const Command& command) { return runIn(folder, command).seconds; }

double peakIn(const Path& folder, const Command& command) {
  const Inside inside(folder);
  return peakOf(command);
}

using Cost = double (*)(const Path& folder, const Command& command);

Side process(std::string name, const Path& folder, const Command& command) {
  return {std::move(name), [=]() -> Work { return [=] { return secondsIn(folder, command); }; }};
}

Command emptyBatch(const Folders& folders) { return {builtProgram("orvane-batch"), folders.emptyScript().string()}; }

// What a process costs in one folder beyond what it costs in another one.
Side beyond(std::string name, const Folders& folders, Cost cost) {
  return {std::move(name), [&folders, cost]() -> Work {
            return [large = folders.records(many), small = folders.records(1), batch = emptyBatch(folders), cost] {
              return cost(large, batch) - cost(small, batch);
            };
          }};
}

Side awk(const Folders& folders) {
  const std::string reading = "awk -F';' '{ fields += NF } END { print fields }' *.txt";
  return {"awk -F';'", [&folders, reading]() -> Work {
            return [large = folders.records(many), reading] { return secondsIn(large, {"sh", "-c", reading}); };
          }};
}

Side bytesOfFiles(const Folders& folders) {
  return {"their bytes", [&folders]() -> Work {
            double bytes = 0;
            for (const auto& file : std::filesystem::directory_iterator(folders.records(many)))
              bytes += static_cast<double>(file.file_size());
            return [bytes] { return bytes; };
          }};
}

double playTable(const Folders& folders, int rows, Cost cost) {
  write(folders.game() / "rows.csv", Character::table(rows));
  return cost(folders.game(),
              {builtProgram("orvane-batch"), "--with", "rows.csv", Character(folders.sources()).file().string()});
}

constexpr int fewSheets = 20;
constexpr int manySheets = 120;

Side oneSheetOfMany(const Folders& folders) {
  return {"a sheet more in orvane-batch, without the sync", [&folders]() -> Work {
            return [&folders] {
              const auto cost = [&](int sheets) { return playTable(folders, sheets, secondsIn); };
              return (cost(manySheets) - cost(fewSheets)) / (manySheets - fewSheets);
            };
          }};
}

Side peakOfSheets(const Folders& folders, int rows) {
  return {"memory of orvane-batch for " + std::to_string(rows) + " sheets",
          [&folders, rows]() -> Work { return [&folders, rows] { return playTable(folders, rows, peakIn); }; }};
}

Side windowWithSheet(const Folders& folders) {
  return {"memory of a character window with its sheet", [&folders]() -> Work {
            return [&folders] {
              const Command command = {builtProgram("orvane-bench"), "--weigh-windows", folders.sources().string()};
              return std::stod(runIn(folders.game(), command).output);
            };
          }};
}

// --- Inside this process

// From memory as fresh as that of a process that starts.
double loadingTime() {
  ::malloc_trim(0);
  ReferenceData data;
  DiskFiles files;
  QuietDialogs dialogs;
  return processorTimeOf([&] { prcLoadData(data, files, dialogs); });
}

Side loading(const Folders& folders, int records) {
  return {"loading eight files of " + std::to_string(records) + " records",
          [&folders, records]() -> Work {
            return [folder = folders.records(records)] {
              const Inside inside(folder);
              return loadingTime();
            };
          },
          1, static_cast<double>(many) / records};
}

using Part = double CharacterTimes::*;

Side character(std::string name, const Path& sources, const Path& folder, Part part, double (*clock)()) {
  return {std::move(name),
          [=]() -> Work {
            return [script = Character(sources).numbered(1), folder, part, clock] {
              const Inside inside(folder);
              QtPictures pictures;
              return playTimed(script, pictures, clock).*part;
            };
          },
          5};
}

Side sheetOfCharacter(const Folders& folders) {
  return character("both sides of a full character, composed and written", folders.sources(), folders.game(),
                   &CharacterTimes::sheet, processorTime);
}

Side plainWrite(std::string name, const Path& folder, bool synced, double (*clock)()) {
  return {std::move(name),
          [=]() -> Work {
            QtPictures pictures;
            const TwoFiles bytes = {pictures.open("recto")->bitmap(), pictures.open("verso")->bitmap()};
            return [=] {
              const Inside inside(folder);
              const double start = clock();
              writePlainly(bytes, synced);
              const double taken = clock() - start;
              removePlainFiles();
              return taken;
            };
          },
          5};
}

Side obviousWay(const Folders& folders) {
  return {"the obvious way",
          [&folders]() -> Work {
            const Inside start(folders.game());
            QtPictures pictures;
            return [prints = printsOf(Character(folders.sources()).numbered(1), pictures), &folders] {
              const Inside inside(folders.game());
              const double taken = processorTimeOf([&] { composeTheObviousWay(prints); });
              removePlainFiles();
              return taken;
            };
          },
          5};
}

// --- On the screen

Side openWindow(const Folders& folders) {
  return {"opening a character window",
          [&folders]() -> Work {
            return [run = std::make_shared<ScreenRun>(folders.game())] {
              frmPersonnage* character = nullptr;
              const double taken = processorTimeOf([&] { character = &run->openCharacter(); });
              run->close(*character);
              return taken;
            };
          },
          5};
}

Side bareWindow(const Folders& folders) {
  return {"a bare window of as many widgets",
          [&folders]() -> Work {
            ScreenRun run(folders.game());
            return [window = std::make_shared<BareWindow>(run.windowOf(run.openCharacter()))] {
              const double taken = processorTimeOf([&] { window->open(); });
              window->close();
              return taken;
            };
          },
          5};
}

Side pickProfile(const Folders& folders, int skills) {
  return {"cmbProfil_Click with " + std::to_string(skills) + " skills",
          [&folders, skills]() -> Work {
            auto run = std::make_shared<ScreenRun>(folders.skills(skills));
            frmPersonnage& character = run->openCharacter();
            return [run, &character] {
              run->act([&](User& user) { user.pick(character.SSTabPerso, 0); });
              return processorTimeOf([&] {
                run->act([&](User& user) { user.pick(character.cmbProfil, 0); });
                run->act([&](User& user) { user.pick(character.SSTabPerso, frmPersonnage::Competences); });
              });
            };
          },
          1};
}

Side arrow(const Folders& folders) {
  return {"a click on an arrow button, with the redraw",
          [&folders]() -> Work {
            auto run = std::make_shared<ScreenRun>(folders.game());
            frmPersonnage& character = run->openCharacter();
            run->act([&](User& user) { user.pick(character.SSTabPerso, frmPersonnage::Competences); });
            auto& window = run->windowOf(character);
            auto* down = window.findChild<QAbstractButton*>("cmdSkillGenModif_0");
            auto* up = window.findChild<QAbstractButton*>("cmdSkillGenModif_1");
            return [run, down, up] {
              const auto bothWays = processorTimeOf([&] {
                for (auto* button : {up, down}) {
                  button->click();
                  showAll();
                }
              });
              return bothWays / 2;
            };
          },
          10};
}

}  // namespace

std::vector<Row> allRows(const Folders& folders) {
  const Path game = folders.game();
  const Path sources = folders.sources();
  const auto memory = Unit::Mebibytes;
  std::vector<Row> rows;
  const auto add = [&](Side program, Side yardstick, double target, Unit unit = Unit::Milliseconds) {
    rows.push_back({unit, std::move(program), std::move(yardstick), target});
  };
  add(process("start to the shown main window", game, {builtProgram("orvane-to-main-window")}),
      process("an empty QApplication with a QMainWindow", game, {builtProgram("empty-window")}), 1.5);
  add(process("the same", game, {builtProgram("orvane-to-main-window")}),
      process("that window with a word in it", game, {builtProgram("empty-window"), "Tessaly"}), 0);
  add(process("orvane-batch on an empty script", game, emptyBatch(folders)),
      process("an empty QGuiApplication", game, {builtProgram("empty-gui")}), 1.1);
  add(beyond("loading eight files of 32000 records", folders, secondsIn), awk(folders), 3.0);
  auto linear = loading(folders, few);
  linear.name = "32 times as long as 1000 records";
  add(loading(folders, many), std::move(linear), 1.2);
  add(sheetOfCharacter(folders), plainWrite("one plain write of the same bytes", game, false, processorTime), 2.5);
  add(sheetOfCharacter(folders), obviousWay(folders), 0.25);
  add(character("all acts of a full character", sources, game, &CharacterTimes::acts, processorTime),
      constant("a thousandth of a second", acts), 1.0);
  add(openWindow(folders), bareWindow(folders), 2.0);
  add(pickProfile(folders, 16000), pickProfile(folders, 1000), 24);
  add(arrow(folders), constant("one frame of 16 ms", frame), 0.1);
  add(windowWithSheet(folders), constant("4.5 MiB", windowBytes), 1.0, memory);
  add(beyond("memory for eight files of 32000 records", folders, peakIn), bytesOfFiles(folders), 1.5, memory);
  add(oneSheetOfMany(folders), constant("150 sheets a second", sheet), 1.0);
  add(peakOfSheets(folders, manySheets), peakOfSheets(folders, fewSheets), 1.05, memory);
  add(character("the same sheet on the disk, with all syncs, waiting included", sources, folders.gameOnDisk(),
                &CharacterTimes::sheet, wallTime),
      plainWrite("one plain write and sync of each file", folders.gameOnDisk(), true, wallTime), 0);
  return rows;
}

double weighWindows(const Path& sources) {
  constexpr int windows = 8;
  const Character character(sources);
  std::vector<Script> scripts;
  for (int number = 1; number <= windows; ++number) {
    scripts.push_back(character.numbered(number));
    std::erase_if(scripts.back().acts, [](const Act& act) { return act.target.name == "cmdSave"; });
  }
  std::vector<double> bytes;
  const auto weigh = [&](const std::string& clicked) {
    if (clicked != "cmdPrintPreview") return;
    showAll();
    bytes.push_back(residentBytes());
  };
  QtPictures pictures;
  play(scripts, pictures, {.after = weigh}, true);
  return (bytes.back() - bytes.front()) / (windows - 1);
}

}  // namespace orvane::bench
