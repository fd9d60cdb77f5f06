// Damaged files of every kind that the workbench reads, under the sanitizers: each is read, or
// refused with a reason that a person can use. A finding names its seed, and QM_SEED=SEED makes it
// the first again.
#include <gtest/gtest.h>
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>

#include "tests/damage.h"
#include "tests/long_run.h"
#include "tests/source_folder.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/message_file.h"
#include "workbench/base/utf8_text.h"
#include "workbench/base/zip_archive.h"
#include "workbench/dialog/dialog_html.h"
#include "workbench/language/script_parser.h"
#include "workbench/session/model_file.h"
#include "workbench/sheet/dxf_reader.h"
#include "workbench/step/import.h"
#include "workbench/workbook/xlsx_file.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

// Far longer than any of these files takes.
constexpr unsigned kHangSeconds = 30;
constexpr int kFewSeeds = 60;
constexpr int kManySeeds = 10000;

struct SoundFile {
  std::string name;
  std::string content;
};

// One kind of file: some that are sound, and how they are read. What cannot be read is refused by
// an exception that is a std::runtime_error; `name` is that of the file.
struct FileKind {
  const char* name;
  std::vector<SoundFile> (*sound)();
  void (*read)(const std::string& content, const fs::path& file);
};

std::string Content(const fs::path& file) {
  return ReadFileBytes(file).value();
}

SoundFile Sound(const fs::path& file) {
  return {file.filename().string(), Content(file)};
}

std::vector<SoundFile> SoundFiles(const fs::path& folder, const std::string& pattern) {
  std::vector<fs::path> found;
  for (const auto& item : fs::recursive_directory_iterator(SourceFolder() / folder)) {
    const std::string name = item.path().filename().string();
    if (item.is_regular_file() && name.find(pattern) != std::string::npos) found.push_back(item);
  }
  std::ranges::sort(found);
  std::vector<SoundFile> files;
  for (const fs::path& file : found) files.push_back(Sound(file));
  return files;
}

const fs::path& Written(const std::string& content, const fs::path& file) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
  return file;
}

// --- STEP

std::vector<SoundFile> StepFiles() {
  return {Sound(SourceFolder() / "demo" / "drive_unit.stp")};
}

void ReadStep(const std::string& content, const fs::path& file) {
  ModelTable(ReadStepModels(Written(content, file)));
}

// --- Models

std::vector<SoundFile> ModelFiles() {
  return SoundFiles("demo", ".1");
}

// What has been read can be written, and is the same when it is read again.
void ReadModel(const std::string& content, const fs::path& file) {
  const std::string document = ModelDocument(ReadModelFile(Written(content, file)));
  EXPECT_EQ(ModelDocument(ReadModelFile(Written(document, file))), document);
}

// --- Dialogs and messages

std::vector<SoundFile> Resources() {
  return SoundFiles("install/text/resource", ".res");
}

void ReadResource(const std::string& content, const fs::path& file) {
  DrawDialog(Dialog(ParseDialogResource(content, file.string())));
}

std::vector<SoundFile> MessageFiles() {
  return SoundFiles("install/text", ".txt");
}

MessageArg ArgumentFor(const MessageArgCode& code) {
  if (code.type == MessageArgType::kInteger) return std::int64_t{7};
  if (code.type == MessageArgType::kDouble) return 7.5;
  return std::string("seven");
}

void ReadMessages(const std::string& content, const fs::path& file) {
  const MessageFile messages = MessageFile::Parse(content, file.string());
  for (const MessageRecord& record : messages.Records()) {
    std::vector<MessageArg> arguments;
    for (const MessageArgCode& code : record.arguments) arguments.push_back(ArgumentFor(code));
    SplitPrompt(FormatMessageText(record.Text(), arguments));
  }
}

// --- Workbooks

// The parts that are looked into.
constexpr const char* kWorkbookParts[] = {"[Content_Types].xml",      "_rels/.rels",
                                          "xl/workbook.xml",          "xl/_rels/workbook.xml.rels",
                                          "xl/worksheets/sheet1.xml", "xl/styles.xml",
                                          "xl/sharedStrings.xml"};
constexpr char kPartEnd = '\x1E';

std::string Unpacked(const fs::path& file) {
  const ZipReader archive(Content(file));
  std::string parts;
  for (const char* const part : kWorkbookParts) {
    if (archive.Has(part)) parts += part + ("\n" + archive.Read(part)) + kPartEnd;
  }
  return parts;
}

std::vector<fs::path> Workbooks() {
  return {SourceFolder() / "demo" / "new_names.xlsx",
          SourceFolder() / "tests/workbench/workbook/data/saved_by_another_program.xlsx"};
}

// As they lie on disk, so that the archive is damaged.
std::vector<SoundFile> PackedWorkbooks() {
  std::vector<SoundFile> books;
  for (const fs::path& book : Workbooks()) books.push_back(Sound(book));
  return books;
}

// A sound archive of damaged parts.
std::vector<SoundFile> UnpackedWorkbooks() {
  std::vector<SoundFile> books;
  for (const fs::path& book : Workbooks()) books.push_back({"book.xlsx", Unpacked(book)});
  return books;
}

std::string Packed(const std::string& parts) {
  ZipWriter archive;
  for (size_t begin = 0; begin < parts.size();) {
    const size_t end = std::min(parts.find(kPartEnd, begin), parts.size());
    const std::string part = parts.substr(begin, end - begin);
    const size_t name = std::min(part.find('\n'), part.size());
    archive.Add(part.substr(0, name),
                std::string_view(part).substr(std::min(name + 1, part.size())));
    begin = end + 1;
  }
  return archive.Finish();
}

void ReadPacked(const std::string& content, const fs::path& file) {
  ReadXlsx(Written(content, file));
}

void ReadUnpacked(const std::string& parts, const fs::path& file) {
  ReadXlsx(Written(Packed(parts), file));
}

// --- Scripts

// Patterns of every kind; nothing is carried out.
// clang-format off
constexpr StatementForm kForms[] = {
    {"component MODEL <- COMPONENT {[id ID] [STATE:active|suppressed] [hidden] [at X Y Z] [times TIMES]}",
                                          kTopPlace,       nullptr},
    {"select [also] item ITEM ID of MODEL [at PATH]", kTopPlace, nullptr},
    {"select [also] PATH...",             kTopPlace,       nullptr},
    {"setting FILE KEY TEXT",             kTopPlace,       nullptr},
    {"sweep COMMAND with",                kTopPlace,       nullptr, kAnswerPlace},
    {"run COMMAND with",                  kTopOrDialog,    nullptr, kAnswerPlace},
    {"run COMMAND",                       kTopOrDialog,    nullptr},
    {"dialog NAME",                       kAnswerOrDialog, nullptr, kDialogPlace},
    {"message KIND:caption|plain TEXT",   kAnswerOrDialog, nullptr},
    {"at call NTH of FUNCTION",           kAnswerOrDialog, nullptr, kDialogPlace},
    {"set COMPONENT TEXT",                kDialogPlace,    nullptr},
    {"press COMPONENT",                   kDialogPlace,    nullptr},
    {"close",                             kDialogPlace,    nullptr},
    {"expect WHAT...",                    kTopOrDialog | kAnswerOrDialog, nullptr},
};
// clang-format on

std::vector<SoundFile> Scripts() {
  return {{"pump.qms",
           "# The pump, and a bolt in it.\ncomponent pump <- bolt at 1 2.5 -3e2 times 4 hidden\n"
           "select also item surface 3 of bolt at rotor/bolt#2\nselect rotor/bolt \"pla te\"\n"
           "setting QmParams.ini InputKeyWords \"gb,\\tiso\"\nrun QmIsolate\n"
           "sweep QmParams with\n  dialog QmParams\n    set ParaName P\n    press Add\n"
           "    run ForTest\n    close\n  end\n  message caption \"\\tdone\\t\"\nend\n"
           "run QmBom with\n  at call 3 of ProMdlCurrentGet\n    close\n  end\nend\n"
           "expect note \"模型名称已复制\"\n"}};
}

// The first of the errors, all of which say where and why.
void ReadScript(const std::string& content, const fs::path& file) {
  const ParsedScript script = ParseScript(content, file.string(), kForms);
  for (const LineError& error : script.errors) {
    EXPECT_FALSE(error.reason.empty());
    EXPECT_GT(error.line, 0);
  }
  if (!script.errors.empty()) throw LineError(script.errors.front());
}

// --- Drawings of other programs

std::vector<SoundFile> DxfFiles() {
  return {
      {"sheet.dxf",
       "0\nSECTION\n2\nHEADER\n9\n$CUSTOMPROPERTYTAG\n1\nSheet\n9\n$CUSTOMPROPERTY\n1\nA3\n"
       "0\nENDSEC\n0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n2\nVIEWS\n0\nENDTAB\n"
       "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nTEXT\n8\nVIEWS\n1\npump\n0\nLWPOLYLINE\n8\nVIEWS\n"
       "90\n2\n10\n0.0\n20\n0.0\n0\nENDSEC\n0\nEOF\n"}};
}

void ReadDxfText(const std::string& content, const fs::path&) {
  ReadDxf(content);
}

// What the process says with its last breath.
char last_words[200];

void Say() {
  static_cast<void>(::write(STDERR_FILENO, last_words, std::char_traits<char>::length(last_words)));
}

// Names the damage before it is read, and ends the process when that goes on too long.
class Watch {
 public:
  Watch(const char* kind, unsigned seed) {
    std::snprintf(last_words, sizeof last_words, "\ndamaged file: %s, QM_SEED=%u\n", kind, seed);
    __sanitizer_set_death_callback(&Say);
    std::signal(SIGALRM, [](int) {
      Say();
      std::abort();
    });
    ::alarm(kHangSeconds);
  }
  ~Watch() {
    ::alarm(0);
    __sanitizer_set_death_callback(nullptr);
  }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
};

class DamagedFiles : public testing::TestWithParam<FileKind> {
 protected:
  // Gives whether it was read.
  bool IsRead(const std::string& name, const std::string& content) const {
    try {
      GetParam().read(content, temporary_.path / name);
      return true;
    } catch (const std::runtime_error& error) {
      EXPECT_STRNE(error.what(), "");
    } catch (const std::exception& error) {
      ADD_FAILURE() << "refused by " << error.what() << ", which nobody can use";
    }
    return false;
  }

 private:
  const TemporaryFolder temporary_{"workbench damaged files"};
};

TEST_P(DamagedFiles, AreReadOrRefusedWithAReason) {
  const FileKind& kind = GetParam();
  const std::vector<SoundFile> sound = kind.sound();
  ASSERT_FALSE(sound.empty());
  for (const SoundFile& file : sound) EXPECT_TRUE(IsRead(file.name, file.content)) << file.name;
  int refused = 0;
  const unsigned first = FirstSeed();
  const unsigned count = IsLongRun() ? kManySeeds : kFewSeeds;
  for (unsigned seed = first; seed != first + count && !HasFailure(); ++seed) {
    SCOPED_TRACE("QM_SEED=" + std::to_string(seed));
    const Watch watch(kind.name, seed);
    const SoundFile& file = sound[seed % sound.size()];
    if (!IsRead(file.name, Damaged(file.content, seed))) ++refused;
  }
  EXPECT_GT(refused, 0);
}

constexpr FileKind kKinds[] = {
    {"step", &StepFiles, &ReadStep},
    {"model", &ModelFiles, &ReadModel},
    {"resource", &Resources, &ReadResource},
    {"message", &MessageFiles, &ReadMessages},
    {"workbook", &PackedWorkbooks, &ReadPacked},
    {"workbook_part", &UnpackedWorkbooks, &ReadUnpacked},
    {"script", &Scripts, &ReadScript},
    {"dxf", &DxfFiles, &ReadDxfText},
};

INSTANTIATE_TEST_SUITE_P(OfEveryKind, DamagedFiles, testing::ValuesIn(kKinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

}  // namespace
}  // namespace wb
