// Data files: comma-separated fields, texts in double quotes, numbers bare with a full stop,
// Booleans as #TRUE# and #FALSE#, one write statement a line. There is no header and there are no
// names in the file: a file means something only to the routine that knows its sequence of fields.
//
// The same description of the fields serves reading and writing: a case writes one routine
//     template <class Archive> void Campi(Archive& file, DatiPpe& dati)
// that calls file.Line(Field("NumPartite", dati.NumPartite), ...) once for each line.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "runtime/folder.h"

namespace orm {

// One field: its name for messages, and the value that it is read into or written from.
template <class T>
struct Field {
  Field(const char* fieldName, T& fieldValue) : name(fieldName), value(fieldValue) {}
  const char* name;
  T& value;
};

// A count of records that follow, from 0 to `most`: the reader refuses any other.
struct CountField : Field<std::int16_t> {
  CountField(const char* fieldName, std::int16_t& fieldValue, int mostRecords)
      : Field(fieldName, fieldValue), most(mostRecords) {}
  int most;
};

// An amount in the currency of the note: the conversion of a data file passes it from Lire to Euro.
struct MoneyField : Field<double> {
  using Field::Field;
};

class DataReader {
 public:
  // Reads the whole file. Every failure of this class names the file, the line and the field.
  DataReader(const WorkFolder& folder, const std::string& name);
  // The same on bytes at hand.
  static DataReader OfBytes(std::string name, std::string_view bytes);

  // The next field; a file that ends before it is a failure. An empty field without quotes is ""
  // or 0. A text may hold line ends, given back as "\n".
  std::string Text(const char* field);
  double Number(const char* field);
  std::int16_t Integer(const char* field);
  std::int32_t LongInteger(const char* field);
  std::uint8_t Byte(const char* field);
  bool Boolean(const char* field);
  // A count of things to come, from 0 to `most`.
  std::int16_t Count(const char* field, int most);

  void Read(Field<std::string> field) { field.value = Text(field.name); }
  void Read(Field<double> field) { field.value = Number(field.name); }
  void Read(Field<std::int16_t> field) { field.value = Integer(field.name); }
  void Read(Field<std::int32_t> field) { field.value = LongInteger(field.name); }
  void Read(CountField field) { field.value = Count(field.name, field.most); }
  void Read(Field<std::uint8_t> field) { field.value = Byte(field.name); }
  void Read(Field<bool> field) { field.value = Boolean(field.name); }

  template <class... F>
  void Line(F... fields) {
    (Read(fields), ...);
  }

  bool AtEnd();  // nothing but blanks and line ends is left
  // Refuses the value of the field read last, with its place.
  [[noreturn]] void Fail(const char* field, std::string reason) const;
  // A failure when the file goes on: data that nobody would read must not be lost at the next save.
  void ExpectEnd();

 private:
  DataReader() = default;
  struct Raw {
    std::string text;
    bool quoted = false;
  };
  Raw Next(const char* field);
  template <class T>
  T Whole(const char* field);
  void SkipBlanks();
  void RefuseByteOrderMark(const char* field) const;

  std::string name_;
  std::string bytes_;
  std::size_t at_ = 0;
  int line_ = 1;
  bool afterComma_ = false;
  int fieldLine_ = 1;
};

class DataWriter {
 public:
  void Write(Field<std::string> field);
  void Write(Field<double> field);
  void Write(Field<std::int16_t> field);
  void Write(Field<std::int32_t> field);
  void Write(Field<std::uint8_t> field);
  void Write(Field<bool> field);

  template <class... F>
  void Line(F... fields) {
    (Write(fields), ...);
    bytes_ += "\r\n";
    lineStarts_ = true;
  }

  const std::string& Bytes() const { return bytes_; }
  void Replace(const WorkFolder& folder, std::string_view name) const;
  // The old contents of the file and, behind them, what was written here.
  void Append(const WorkFolder& folder, std::string_view name) const;

 private:
  void Separate();
  std::string bytes_;
  bool lineStarts_ = true;
};

// A whole file of one record by its Campi. What the file does not have fields for is refused.
template <class Dati>
Dati LeggiFile(const WorkFolder& folder, const std::string& name, Dati dati = {}) {
  DataReader file(folder, name);
  Campi(file, dati);
  file.ExpectEnd();
  return dati;
}

template <class Dati>
void ScriviFile(const WorkFolder& folder, std::string_view name, Dati dati) {
  DataWriter file;
  Campi(file, dati);
  file.Replace(folder, name);
}

}  // namespace orm
