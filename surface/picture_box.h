#pragma once

#include <memory>

#include "surface/placed_control.h"
#include "surface/world.h"

namespace orvane {

class PictureBox;

// What was printed on the pictures of a form, in order, and what found no room.
struct PrintLog {
  struct Entry {
    const PictureBox* picture;
    std::string text;
    float x;  // twips
    float y;
    float points;
  };
  struct Lost {
    std::string shape;
    std::string words;  // from the first one dropped, joined by single blanks, without markers
  };
  std::vector<Entry> printed;
  std::vector<Lost> lost;
};

// A box that shows a picture, which texts are printed on for good.
class PictureBox : public PlacedControl {
 public:
  struct Design {
    std::string picture = {};  // of the pictures stored with the program; none for an empty box
    PrintLog* log = nullptr;   // of the form; outlives the box
  };

  PictureBox(Place place, std::string name, Design design = byDefault<Design>());

  // True: the box takes the size of its picture.
  void setAutoSize(bool autoSize);
  void setBorderStyle(int style) { store(borderStyle_, style); }
  // Of what stands on it: 1 twips, 7 centimetres.
  int ScaleMode() const { return scaleMode_; }
  void setScaleMode(int mode) { store(scaleMode_, mode); }

  // All that follows fails on a box without a picture. Measures are twips inside the picture.
  void setFontName(std::string name);
  float FontSize() const { return fontSize_; }
  void setFontSize(float points);
  float TextWidth(std::string_view text) const { return canvas().TextWidth(text); }
  float TextHeight(std::string_view text) const { return canvas().TextHeight(text); }
  void setCurrentX(float x) { currentX_ = x; }
  void setCurrentY(float y) { currentY_ = y; }
  void Print(const std::string& text);
  void noteLost(const std::string& shape, std::string words);
  const Canvas& Image() const { return canvas(); }
  bool hasPicture() const { return canvas_ != nullptr; }
  const PrintLog* log() const { return log_; }

  std::string_view kind() const override { return "image"; }
  PropertyList properties() const override;
  bool takesFocus() const override { return false; }

 private:
  Canvas& canvas() const;
  void chooseFont();

  std::unique_ptr<Canvas> canvas_;
  PrintLog* log_;
  bool autoSize_ = false;
  int borderStyle_ = 1;
  int scaleMode_ = 1;
  std::string fontName_ = "Times New Roman";
  float fontSize_ = 8;
  float currentX_ = 0;
  float currentY_ = 0;
};

}  // namespace orvane
