#include "screen/caption.h"

#include <array>
#include <map>
#include <tuple>

namespace orvane {

const Caption::Room& Caption::room() const {
  using Look = std::tuple<QString, QString, qreal, std::array<int, 9>>;
  static std::map<Look, Room> known;
  ensurePolished();
  const QFont& shape = font();
  const Look look(text(), shape.family(), shape.pointSizeF(),
                  {shape.pixelSize(), shape.weight(), shape.italic(), buddy() != nullptr, wordWrap(), margin(),
                   frameWidth(), minimumWidth(), minimumHeight()});
  const auto found = known.find(look);
  if (found != known.end()) return found->second;
  return known.emplace(look, Room{QLabel::sizeHint(), QLabel::minimumSizeHint()}).first->second;
}

}  // namespace orvane
