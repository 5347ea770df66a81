#include "shell/FrmReadMe.h"

#include "shell/rtf_reader.h"
#include "surface/desktop.h"
#include "surface/failure.h"

namespace orvane {
namespace {

const std::string fileName = "ReadMe.rtf";

}  // namespace

FrmReadMe::FrmReadMe(Desktop& desktop) : Form(desktop, {.name = "FrmReadMe", .caption = "Help File"}) {
  on(cmdClose.Click, &FrmReadMe::cmdClose_Click);
}

void FrmReadMe::Form_Load() {
  try {
    if (desktop().world().files.fileExists(fileName))
      rtbReadMe.LoadFile(fileName, RtfReader::html);
    else
      rtbReadMe.setText("Fichier " + fileName + " manquant.");
  } catch (const Failure& failure) {
    rtbReadMe.setText("Fichier " + fileName + " illisible : " + failure.what());
  }
}

void FrmReadMe::cmdClose_Click() { Unload(); }

}  // namespace orvane
