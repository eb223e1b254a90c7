#include "runtime/data_file.h"

#include <limits>
#include <utility>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {

DataReader::DataReader(const WorkFolder& folder, const std::string& name) {
  *this = OfBytes(name, folder.Read(name));
}

DataReader DataReader::OfBytes(std::string name, std::string_view bytes) {
  DataReader reader;
  reader.name_ = std::move(name);
  reader.bytes_ = bytes;
  return reader;
}

void DataReader::Fail(const char* field, std::string reason) const {
  throw RuntimeFailure(std::move(reason)).AtFile(name_).AtLine(fieldLine_).AtField(field);
}

void DataReader::SkipBlanks() {
  while (at_ < bytes_.size() && (bytes_[at_] == ' ' || bytes_[at_] == '\t')) ++at_;
}

bool DataReader::AtEnd() { return bytes_.find_first_not_of(" \t\r\n", at_) == std::string::npos; }

void DataReader::ExpectEnd() {
  fieldLine_ = line_;
  if (!AtEnd())
    Fail("(fine del file)", "Il file contiene altri dati dopo l'ultimo campo previsto.");
}

// The marks that other programs put before a text that is not in Windows-1252.
void DataReader::RefuseByteOrderMark(const char* field) const {
  if (bytes_.starts_with("\xEF\xBB\xBF"))
    Fail(field, "Il testo non è in codifica Windows-1252 ma in UTF-8.");
  if (bytes_.starts_with("\xFF\xFE") || bytes_.starts_with("\xFE\xFF"))
    Fail(field, "Il testo non è in codifica Windows-1252 ma in UTF-16.");
}

// A field ends at a comma or at a line end; a line end is a separator like any other.
DataReader::Raw DataReader::Next(const char* field) {
  if (at_ == 0) RefuseByteOrderMark(field);
  SkipBlanks();
  fieldLine_ = line_;
  // A comma is followed by a field, even by an empty one at the end of the file.
  const bool afterComma = std::exchange(afterComma_, false);
  if (at_ >= bytes_.size() && !afterComma) Fail(field, "Il file finisce prima di questo campo.");
  Raw raw;
  if (at_ < bytes_.size() && bytes_[at_] == '"') {
    raw.quoted = true;
    ++at_;
    for (;; ++at_) {
      if (at_ >= bytes_.size()) Fail(field, "Il file finisce dentro un testo fra virgolette.");
      const char c = bytes_[at_];
      if (c == '"') {
        if (at_ + 1 >= bytes_.size() || bytes_[at_ + 1] != '"') break;
        ++at_;
      }
      if (c == '\r' && at_ + 1 < bytes_.size() && bytes_[at_ + 1] == '\n') continue;
      // A carriage return alone ends a line here as it does between fields.
      const bool endsLine = c == '\n' || c == '\r';
      if (endsLine) ++line_;
      raw.text += endsLine ? '\n' : c;
    }
    ++at_;
    SkipBlanks();
    if (at_ < bytes_.size() && bytes_[at_] != ',' && bytes_[at_] != '\r' && bytes_[at_] != '\n')
      Fail(field, "Dopo le virgolette di chiusura ci sono altri caratteri.");
  } else {
    const auto end = std::min(bytes_.find_first_of(",\r\n", at_), bytes_.size());
    raw.text = TrimRight(std::string_view(bytes_).substr(at_, end - at_));
    at_ = end;
  }
  if (at_ < bytes_.size()) {
    if (bytes_[at_] == '\r' && at_ + 1 < bytes_.size() && bytes_[at_ + 1] == '\n') ++at_;
    afterComma_ = bytes_[at_] == ',';
    if (!afterComma_) ++line_;
    ++at_;
  }
  try {
    raw.text = FromWindows1252(raw.text);
  } catch (const RuntimeFailure& failure) {
    Fail(field, failure.Reason());
  }
  return raw;
}

std::string DataReader::Text(const char* field) { return Next(field).text; }

double DataReader::Number(const char* field) {
  const Raw raw = Next(field);
  if (raw.text.empty() && !raw.quoted) return 0;
  const auto value = raw.quoted ? std::nullopt : ParseNumber(raw.text);
  if (!value) Fail(field, "Al posto di un numero c'è \"" + Left(raw.text, 40) + "\".");
  return *value;
}

template <class T>
T DataReader::Whole(const char* field) {
  const double value = Number(field);
  if (value != Fix(value)) Fail(field, "Il numero deve essere intero.");
  if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
    Fail(field, "Il numero è fuori dai limiti del campo (overflow).");
  return static_cast<T>(value);
}

std::int16_t DataReader::Integer(const char* field) { return Whole<std::int16_t>(field); }
std::int32_t DataReader::LongInteger(const char* field) { return Whole<std::int32_t>(field); }
std::uint8_t DataReader::Byte(const char* field) { return Whole<std::uint8_t>(field); }

bool DataReader::Boolean(const char* field) {
  const Raw raw = Next(field);
  if (raw.text == "#TRUE#") return true;
  if (raw.text == "#FALSE#" || (raw.text.empty() && !raw.quoted)) return false;
  Fail(field, "Al posto di #TRUE# o #FALSE# c'è \"" + Left(raw.text, 40) + "\".");
}

std::int16_t DataReader::Count(const char* field, int most) {
  const std::int16_t count = Integer(field);
  if (count < 0 || count > most)
    Fail(field, "Il numero di elementi deve essere fra 0 e " + NumberText(most) + ".");
  return count;
}

void DataWriter::Separate() {
  if (!lineStarts_) bytes_ += ',';
  lineStarts_ = false;
}

void DataWriter::Write(Field<std::string> field) {
  Separate();
  std::string bytes;
  try {
    bytes = ToWindows1252(field.value);
    // What would not be read back as it is must not be written either.
    FromWindows1252(bytes);
  } catch (RuntimeFailure& failure) {
    throw failure.AtField(field.name);
  }
  bytes_ += '"';
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const char c = bytes[i];
    if (c == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') continue;
    if (c == '"')
      bytes_ += "\"\"";
    else if (c == '\n' || c == '\r')
      bytes_ += "\r\n";
    else
      bytes_ += c;
  }
  bytes_ += '"';
}

void DataWriter::Write(Field<double> field) {
  Separate();
  bytes_ += NumberText(field.value);
}

void DataWriter::Write(Field<std::int16_t> field) {
  Separate();
  bytes_ += NumberText(field.value);
}

void DataWriter::Write(Field<std::int32_t> field) {
  Separate();
  bytes_ += NumberText(field.value);
}

void DataWriter::Write(Field<std::uint8_t> field) {
  Separate();
  bytes_ += NumberText(field.value);
}

void DataWriter::Write(Field<bool> field) {
  Separate();
  bytes_ += field.value ? "#TRUE#" : "#FALSE#";
}

namespace {
// Before a file is replaced: its new contents are read to their end, field by field.
void CheckOpensAgain(std::string_view name, std::string_view bytes) {
  DataReader again = DataReader::OfBytes(std::string(name), bytes);
  while (!again.AtEnd()) again.Text("(da salvare)");
}
}  // namespace

void DataWriter::Replace(const WorkFolder& folder, std::string_view name) const {
  CheckOpensAgain(name, bytes_);
  folder.Replace(name, bytes_);
}

void DataWriter::Append(const WorkFolder& folder, std::string_view name) const {
  const std::string bytes = folder.Read(name) + bytes_;
  CheckOpensAgain(name, bytes);
  folder.Replace(name, bytes);
}

}  // namespace orm
