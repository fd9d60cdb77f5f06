// Records of the archive format, and the raw deflate streams between them.
#include "workbench/base/zip_archive.h"

#include <zlib.h>

#include <algorithm>

namespace wb {
namespace {

constexpr std::uint32_t kLocalHeader = 0x04034b50;
constexpr std::uint32_t kDirectoryEntry = 0x02014b50;
constexpr std::uint32_t kDirectoryEnd = 0x06054b50;
constexpr size_t kLocalSize = 30;
constexpr size_t kEntrySize = 46;
constexpr size_t kEndSize = 22;
constexpr unsigned kStored = 0;
constexpr unsigned kDeflated = 8;
constexpr unsigned kVersion = 20;
constexpr unsigned kUtf8Names = 0x800;
constexpr unsigned kEncrypted = 0x1;
constexpr unsigned kFirstOfJanuary1980 = 0x21;
// No deflate stream holds more than so many times its bytes; a damaged length must not take memory.
constexpr std::uint64_t kHighestRatio = 1032;
constexpr std::uint64_t kMegabyte = 1u << 20;
// Of all that is read from an archive, far beyond any workbook.
constexpr std::uint64_t kMostUnpacked = 512 * kMegabyte;
// Workbooks pack ten or twenty to one; what packs like this is made to fill the memory.
constexpr std::uint64_t kHighestArchiveRatio = 200;
constexpr std::uint64_t kFreeOfRatio = 16 * kMegabyte;
constexpr int kRawDeflate = -MAX_WBITS;

void Put(std::string& bytes, std::uint32_t value, int width) {
  for (int i = 0; i < width; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xff);
}

std::uint32_t Get(std::string_view bytes, size_t at, int width) {
  if (at + static_cast<size_t>(width) > bytes.size()) throw ZipError("the archive is cut off");
  std::uint32_t value = 0;
  for (int i = 0; i < width; ++i) {
    value |= std::uint32_t{static_cast<unsigned char>(bytes[at + static_cast<size_t>(i)])}
             << (8 * i);
  }
  return value;
}

Bytef* Unsigned(const char* bytes) {
  return reinterpret_cast<Bytef*>(const_cast<char*>(bytes));
}

std::string Deflated(std::string_view content) {
  z_stream stream = {};
  if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kRawDeflate, 8,
                   Z_DEFAULT_STRATEGY) != Z_OK) {
    throw ZipError("compression cannot start");
  }
  std::string packed(deflateBound(&stream, static_cast<uLong>(content.size())), '\0');
  stream.next_in = Unsigned(content.data());
  stream.avail_in = static_cast<uInt>(content.size());
  stream.next_out = Unsigned(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  const int status = deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  if (status != Z_STREAM_END) throw ZipError("compression failed");
  return packed;
}

std::string Inflated(std::string_view packed, std::uint32_t size) {
  std::string content(size, '\0');
  z_stream stream = {};
  stream.next_in = Unsigned(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());
  stream.next_out = Unsigned(content.data());
  stream.avail_out = size;
  if (inflateInit2(&stream, kRawDeflate) != Z_OK) throw ZipError("decompression cannot start");
  const int status = inflate(&stream, Z_FINISH);
  const bool whole = status == Z_STREAM_END && stream.total_out == size;
  inflateEnd(&stream);
  if (!whole) throw ZipError("damaged data");
  return content;
}

std::uint32_t CheckSum(std::string_view content) {
  return static_cast<std::uint32_t>(
      crc32(0, Unsigned(content.data()), static_cast<uInt>(content.size())));
}

size_t FindDirectoryEnd(std::string_view bytes) {
  const std::string mark = {'P', 'K', 5, 6};
  const size_t at = bytes.size() < kEndSize ? bytes.npos : bytes.rfind(mark);
  if (at == bytes.npos || at + kEndSize > bytes.size()) throw ZipError("not a ZIP archive");
  return at;
}

}  // namespace

void ZipWriter::Add(const std::string& name, std::string_view content) {
  const auto offset = static_cast<std::uint32_t>(bytes_.size());
  const std::string packed = Deflated(content);
  // What local header and directory entry have in common.
  std::string shared;
  Put(shared, kVersion, 2);
  Put(shared, kUtf8Names, 2);
  Put(shared, kDeflated, 2);
  Put(shared, 0, 2);  // time of day
  Put(shared, kFirstOfJanuary1980, 2);
  Put(shared, CheckSum(content), 4);
  Put(shared, static_cast<std::uint32_t>(packed.size()), 4);
  Put(shared, static_cast<std::uint32_t>(content.size()), 4);
  Put(shared, static_cast<std::uint32_t>(name.size()), 2);
  Put(shared, 0, 2);  // extra field

  Put(bytes_, kLocalHeader, 4);
  bytes_ += shared + name + packed;

  Put(directory_, kDirectoryEntry, 4);
  Put(directory_, kVersion, 2);
  directory_ += shared;
  Put(directory_, 0, 2);  // comment
  Put(directory_, 0, 2);  // disk
  Put(directory_, 0, 2);  // internal attributes
  Put(directory_, 0, 4);  // external attributes
  Put(directory_, offset, 4);
  directory_ += name;
  ++count_;
}

std::string ZipWriter::Finish() {
  const auto offset = static_cast<std::uint32_t>(bytes_.size());
  bytes_ += directory_;
  Put(bytes_, kDirectoryEnd, 4);
  Put(bytes_, 0, 4);  // disks
  Put(bytes_, count_, 2);
  Put(bytes_, count_, 2);
  Put(bytes_, static_cast<std::uint32_t>(directory_.size()), 4);
  Put(bytes_, offset, 4);
  Put(bytes_, 0, 2);  // comment
  return std::move(bytes_);
}

ZipReader::ZipReader(std::string bytes) : bytes_(std::move(bytes)) {
  const size_t end = FindDirectoryEnd(bytes_);
  const std::uint32_t count = Get(bytes_, end + 10, 2);
  size_t at = Get(bytes_, end + 16, 4);
  for (std::uint32_t i = 0; i < count; ++i) {
    if (Get(bytes_, at, 4) != kDirectoryEntry) throw ZipError("damaged directory");
    Entry entry;
    entry.flags = Get(bytes_, at + 8, 2);
    entry.method = Get(bytes_, at + 10, 2);
    entry.crc = Get(bytes_, at + 16, 4);
    entry.packed = Get(bytes_, at + 20, 4);
    entry.size = Get(bytes_, at + 24, 4);
    entry.offset = Get(bytes_, at + 42, 4);
    const size_t name = Get(bytes_, at + 28, 2);
    const size_t rest = Get(bytes_, at + 30, 2) + Get(bytes_, at + 32, 2);
    if (at + kEntrySize + name > bytes_.size()) throw ZipError("damaged directory");
    entries_[bytes_.substr(at + kEntrySize, name)] = entry;
    at += kEntrySize + name + rest;
  }
}

std::string_view ZipReader::Packed(const std::string& name, const Entry& entry) const {
  if (Get(bytes_, entry.offset, 4) != kLocalHeader) throw ZipError(name + ": damaged header");
  const size_t start = size_t{entry.offset} + kLocalSize + Get(bytes_, entry.offset + 26u, 2) +
                       Get(bytes_, entry.offset + 28u, 2);
  if (start + entry.packed > bytes_.size()) throw ZipError(name + ": cut off");
  return std::string_view(bytes_).substr(start, entry.packed);
}

void ZipReader::CountUnpacked(const std::string& name, std::uint64_t size) const {
  const std::uint64_t most =
      std::min(kMostUnpacked, kFreeOfRatio + kHighestArchiveRatio * bytes_.size());
  unpacked_ += size;
  if (unpacked_ <= most) return;
  throw ZipError(name + ": the archive of " + std::to_string(bytes_.size()) +
                 " bytes unpacks to more than " + std::to_string(most / kMegabyte) + " MB");
}

std::string ZipReader::Read(const std::string& name) const {
  const auto found = entries_.find(name);
  if (found == entries_.end()) throw ZipError(name + ": not in the archive");
  const Entry& entry = found->second;
  if ((entry.flags & kEncrypted) != 0) throw ZipError(name + ": encrypted");
  const std::string_view packed = Packed(name, entry);
  if (entry.size / kHighestRatio > packed.size()) {
    throw ZipError(name + ": said to unpack to " + std::to_string(entry.size) + " bytes, which " +
                   std::to_string(packed.size()) + " cannot hold");
  }
  CountUnpacked(name, entry.size);
  std::string content;
  if (entry.method == kDeflated) {
    content = Inflated(packed, entry.size);
  } else if (entry.method == kStored && entry.packed == entry.size) {
    content = packed;
  } else {
    throw ZipError(name + ": packed by method " + std::to_string(entry.method));
  }
  if (CheckSum(content) != entry.crc) throw ZipError(name + ": damaged data");
  return content;
}

}  // namespace wb
