#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

namespace fs = std::filesystem;

void play(const fs::path& input) {
  std::ifstream file(input, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

// replay-TARGET INPUT|FOLDER...: plays inputs once more, without a fuzzer. A fault ends the program.
int main(int argc, char** argv) {
  int played = 0;
  for (int i = 1; i < argc; ++i) {
    if (!fs::is_directory(argv[i])) {
      play(argv[i]);
      ++played;
      continue;
    }
    for (const auto& entry : fs::directory_iterator(argv[i])) {
      play(entry.path());
      ++played;
    }
  }
  std::printf("%d inputs\n", played);
  return played > 0 ? 0 : 1;
}
