// The layouts of the C library's records, as a string that programs can read under the name "_", so
// that they can build and take apart such records in raw memory.
//
//   [[addrinfo[ai_flags[4]][ai_family[4]]...][fd_set[[128]]]...]
//
// A record lists its fields in the order of their offsets, each with its size; [[n]] stands for n
// bytes without a name. So the sizes add up to the record's size.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

struct TypeField {
  const char* name;
  int64_t size;    // in bytes
  int64_t offset;  // from the start of the record
};

struct TypeRecord {
  const char* name;
  int64_t size;             // in bytes
  const TypeField* fields;  // in any order, not overlapping; null where there are none
  int32_t count;            // of fields
};

struct TypeRecords {
  const TypeRecord* rows;  // lent for the whole process
  int32_t count;
};

// The records as this platform has them, by name.
TypeRecords typerecords();

// The text of one record, and of the whole table.
Str typetext(const TypeRecord& record);
Str typetable();

}  // namespace tarn
