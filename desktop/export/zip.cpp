// Writing an archive: each file behind its header, then the directory of all.
#include "desktop/export/zip.h"

namespace orm {
namespace {

constexpr std::uint32_t kFileMark = 0x04034B50, kEntryMark = 0x02014B50, kEndMark = 0x06054B50;
constexpr std::uint16_t kVersion = 20;
constexpr std::uint16_t kDate = (22 << 9) | (1 << 5) | 1;  // one fixed day: same text, same bytes

void Put16(std::string& out, std::uint32_t value) {
  out += static_cast<char>(value & 0xFF);
  out += static_cast<char>((value >> 8) & 0xFF);
}

void Put32(std::string& out, std::uint32_t value) {
  Put16(out, value & 0xFFFF);
  Put16(out, value >> 16);
}

// What the header of a file and its entry in the directory have in common.
void PutFacts(std::string& out, std::string_view name, std::string_view contents) {
  Put16(out, kVersion);
  Put16(out, 0);  // no flags
  Put16(out, 0);  // stored
  Put16(out, 0);  // midnight
  Put16(out, kDate);
  Put32(out, Crc32(contents));
  Put32(out, static_cast<std::uint32_t>(contents.size()));
  Put32(out, static_cast<std::uint32_t>(contents.size()));
  Put16(out, static_cast<std::uint32_t>(name.size()));
  Put16(out, 0);  // no further fields
}

}  // namespace

std::uint32_t Crc32(std::string_view bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (const char byte : bytes) {
    crc ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320U : 0);
  }
  return ~crc;
}

void ZipArchive::Add(std::string_view name, std::string_view contents) {
  const auto offset = static_cast<std::uint32_t>(files_.size());
  Put32(files_, kFileMark);
  PutFacts(files_, name, contents);
  files_ += name;
  files_ += contents;

  Put32(directory_, kEntryMark);
  Put16(directory_, kVersion);
  PutFacts(directory_, name, contents);
  Put16(directory_, 0);  // no comment
  Put16(directory_, 0);  // first disk
  Put16(directory_, 0);  // no attributes
  Put32(directory_, 0);
  Put32(directory_, offset);
  directory_ += name;
  ++count_;
}

std::string ZipArchive::Finish() {
  const auto start = static_cast<std::uint32_t>(files_.size());
  std::string out = files_ + directory_;
  Put32(out, kEndMark);
  Put32(out, 0);  // one disk
  Put16(out, count_);
  Put16(out, count_);
  Put32(out, static_cast<std::uint32_t>(directory_.size()));
  Put32(out, start);
  Put16(out, 0);
  return out;
}

}  // namespace orm
