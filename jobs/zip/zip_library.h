// libzip, loaded when the first archive is made or read: it brings a library of ciphers along, for
// which nobody should wait who opens the desk.
#pragma once

#include <zip.h>

namespace orm {

// Its calls that are used, by their names without the "zip_" before them.
#define ORM_ZIP_CALLS(CALL)          \
  CALL(close)                        \
  CALL(dir_add)                      \
  CALL(discard)                      \
  CALL(fclose)                       \
  CALL(file_add)                     \
  CALL(file_get_external_attributes) \
  CALL(file_set_mtime)               \
  CALL(fopen_index)                  \
  CALL(fread)                        \
  CALL(get_num_entries)              \
  CALL(open_from_source)             \
  CALL(source_buffer)                \
  CALL(source_buffer_create)         \
  CALL(source_close)                 \
  CALL(source_free)                  \
  CALL(source_keep)                  \
  CALL(source_open)                  \
  CALL(source_read)                  \
  CALL(source_stat)                  \
  CALL(stat_index)                   \
  CALL(stat_init)

struct ZipCalls {
#define ORM_ZIP_CALL(name) decltype(&::zip_##name) name;
  ORM_ZIP_CALLS(ORM_ZIP_CALL)
#undef ORM_ZIP_CALL
};

// A system without the library is a RuntimeFailure.
const ZipCalls& LibZip();

}  // namespace orm
