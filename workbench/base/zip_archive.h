// ZIP archives in memory, as far as workbooks need them: stored and deflated entries, no
// encryption, no archives beyond 4 GB.
#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace wb {

struct ZipError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class ZipWriter {
 public:
  // Every entry carries the same time, so that the same entries give the same bytes.
  void Add(const std::string& name, std::string_view content);
  // The archive. Nothing is added after it.
  std::string Finish();

 private:
  std::string bytes_;
  std::string directory_;
  std::uint16_t count_ = 0;
};

class ZipReader {
 public:
  // Throws ZipError when `bytes` is no archive or its directory is damaged.
  explicit ZipReader(std::string bytes);

  bool Has(const std::string& name) const { return entries_.contains(name); }
  // Throws ZipError for an entry that is missing, damaged or packed in another way, and when the
  // archive unpacks to more than a workbook of its size would.
  std::string Read(const std::string& name) const;

 private:
  struct Entry {
    unsigned flags = 0, method = 0;
    std::uint32_t crc = 0, packed = 0, size = 0, offset = 0;
  };
  std::string_view Packed(const std::string& name, const Entry& entry) const;
  void CountUnpacked(const std::string& name, std::uint64_t size) const;

  std::string bytes_;
  std::map<std::string, Entry> entries_;
  mutable std::uint64_t unpacked_ = 0;  // by all reads so far
};

}  // namespace wb
