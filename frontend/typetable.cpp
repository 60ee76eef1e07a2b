// The layouts as text.
#include "frontend/typetable.h"

#include <algorithm>
#include <vector>

namespace tarn {

static Str padding(int64_t n) { return n == 0 ? Str() : "[[" + strnumber(n) + "]]"; }

Str typetext(const TypeRecord& record) {
  std::vector<TypeField> fields(record.fields, record.fields + record.count);
  std::sort(fields.begin(), fields.end(),
            [](const TypeField& a, const TypeField& b) { return a.offset < b.offset; });
  Str text = Str("[") + record.name;
  int64_t end = 0;
  for (const TypeField& field : fields) {
    check(field.offset >= end);
    text += padding(field.offset - end);
    text += Str("[") + field.name + "[" + strnumber(field.size) + "]]";
    end = field.offset + field.size;
  }
  check(record.size >= end);
  return text + padding(record.size - end) + "]";
}

Str typetable() {
  TypeRecords records = typerecords();
  Str text = "[";
  for (int32_t i = 0; i < records.count; i++) text += typetext(records.rows[i]);
  return text + "]";
}

}  // namespace tarn
