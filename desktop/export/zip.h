// An archive of files stored as they are, the outer form of a text document.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orm {

class ZipArchive {
 public:
  void Add(std::string_view name, std::string_view contents);

  // The whole archive; nothing is added after.
  std::string Finish();

 private:
  std::string files_, directory_;
  std::uint16_t count_ = 0;
};

std::uint32_t Crc32(std::string_view bytes);

}  // namespace orm
