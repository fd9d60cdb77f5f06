// What a user finds of a STEP assembly: models, components, and what is missing.
#include "workbench/step/step_product.h"

#include <gtest/gtest.h>

#include "tests/workbench/error_from.h"
#include "tests/workbench/step/step_pair.h"

namespace wb {
namespace {

using Builder = StepTextBuilder;

// With the line of instance `id`.
void ExpectRefused(const Builder& file, int id, const std::string& reason = {}) {
  const std::string error = ErrorFrom([&] { file.Read(); });
  ExpectError(error, "pump.stp:" + std::to_string(id + 4) + ": ", reason);
}

bool HasNote(const StepAssembly& assembly, const std::string& part) {
  for (const std::string& note : assembly.notes) {
    if (note.find(part) != std::string::npos) return true;
  }
  return false;
}

// The bolt's usage in the pump as an instance of several types, still open.
std::string SplitUsage(const StepPair& p) {
  return "(ASSEMBLY_COMPONENT_USAGE($)NEXT_ASSEMBLY_USAGE_OCCURRENCE()"
         "PRODUCT_DEFINITION_RELATIONSHIP('7','',''," +
         Builder::Ref(p.pump.definition) + "," + Builder::Ref(p.bolt.definition) +
         ")PRODUCT_DEFINITION_USAGE()";
}

TEST(StepProduct, CountsOnlyDirectUsagesAndNotesTheOthers) {
  StepPair p;
  p.file.Usage(p.pump, p.bolt, "", "SPECIFIED_HIGHER_USAGE_OCCURRENCE");
  p.file.Usage(p.pump, p.bolt, "", "PROMISSORY_USAGE_OCCURRENCE");
  p.file.Add(SplitUsage(p) + ")");
  const StepAssembly assembly = p.file.Read();
  ASSERT_EQ(assembly.models[1].components.size(), 1u);
  EXPECT_EQ(assembly.models[1].components[0].name, "7");
  EXPECT_EQ(Rows(assembly.models[1].components[0].placement), "1 0 0 0 1 0 0 0 1 0 0 0 ");
  for (const char* note : {"1 SPECIFIED_HIGHER_USAGE_OCCURRENCE left out", "1 PROMISSORY",
                           "1 components have no placement", "1 parts have no geometry"}) {
    EXPECT_TRUE(HasNote(assembly, note)) << note;
  }
}

TEST(StepProduct, AUsageWithAQuantityIsAsManyComponents) {
  const struct {
    const char* measure;
    size_t components;
    const char* note;
  } cases[] = {
      {"MEASURE_WITH_UNIT(COUNT_MEASURE(4.),$)", 4, "7 in pump: given with a quantity, imported 4"},
      {"MEASURE_REPRESENTATION_ITEM('quantity',COUNT_MEASURE(3.),$)", 3, "imported 3 times"},
      {"(MEASURE_REPRESENTATION_ITEM()MEASURE_WITH_UNIT(2,$)REPRESENTATION_ITEM(''))", 2,
       "imported 2 times"},
      {"MEASURE_WITH_UNIT(2.5,$)", 1, "given with a quantity that is no number of pieces"},
      {"MEASURE_WITH_UNIT(1.E9,$)", 1, "imported once"},
      {"(A()B())", 1, "imported once"}};
  for (const auto& item : cases) {
    StepPair p;
    const int measure = p.file.Add(item.measure);
    p.file.Add(SplitUsage(p) + "QUANTIFIED_ASSEMBLY_COMPONENT_USAGE(" + Builder::Ref(measure) +
               "))");
    const StepAssembly assembly = p.file.Read();
    EXPECT_EQ(assembly.models[1].components.size(), item.components) << item.measure;
    EXPECT_TRUE(HasNote(assembly, item.note)) << item.measure;
  }
}

TEST(StepProduct, QuantitiesThatWouldFillTheMemoryAreRefusedWithTheirLine) {
  StepPair p;
  const int measure = p.file.Add("MEASURE_WITH_UNIT(COUNT_MEASURE(10000.),$)");
  int last = 0;
  for (int i = 0; i < 11; ++i) {
    last = p.file.Add("QUANTIFIED_ASSEMBLY_COMPONENT_USAGE('7','','',#" +
                      std::to_string(p.pump.definition) + ",#" + std::to_string(p.bolt.definition) +
                      ",$,#" + std::to_string(measure) + ")");
  }
  ExpectRefused(p.file, last, "with this quantity the file has more than 100000 components");
}

TEST(StepProduct, AProductGivesOneModelForEachDefinitionInUse) {
  StepPair p;
  p.file.Definition(p.bolt.product);  // a view that nobody uses
  const auto second = Builder::Part{p.bolt.product, p.file.Definition(p.bolt.product), 0};
  p.file.Usage(p.pump, second);
  const int lonely = p.file.Add("PRODUCT('only id','','',())");
  p.file.Definition(lonely);
  const StepAssembly assembly = p.file.Read();
  std::string names;
  for (const StepModel& model : assembly.models) names += model.name + " ";
  EXPECT_EQ(names, "bolt pump bolt only id ");
  EXPECT_EQ(assembly.models[1].components.at(0).child, 2);
  EXPECT_EQ(assembly.tops, (std::vector<int>{0, 1, 3}));
}

TEST(StepProduct, OtherFilesAreNotedAndDocumentsAreNoModels) {
  StepPair p;
  const int document = p.file.Add("DOCUMENT_FILE('bolt_1.stp','','',$,'',$)");
  p.file.Add("APPLIED_DOCUMENT_REFERENCE(#" + std::to_string(document) + ",'',(#" +
             std::to_string(p.bolt.definition) + "))");
  const int drawing = p.file.Add("PRODUCT('drawing','drawing','',())");
  p.file.Add("PRODUCT_RELATED_PRODUCT_CATEGORY('document',$,(#" + std::to_string(drawing) + "))");
  p.file.Definition(drawing);
  const StepAssembly assembly = p.file.Read();
  EXPECT_EQ(assembly.models.size(), 2u);
  EXPECT_TRUE(HasNote(assembly, "bolt: refers to bolt_1.stp, which is not read"));
}

TEST(StepProduct, RawMaterialIsNoPartUnlessAnAssemblyPlacesIt) {
  StepPair p;
  const auto bar = p.file.Product("bar", {p.from}, p.context);
  const auto glue = p.file.Product("glue", {p.from}, p.context);
  const auto category = [&](const char* name, int product) {
    p.file.Add("PRODUCT_RELATED_PRODUCT_CATEGORY('" + std::string(name) + "',$,(#" +
               std::to_string(product) + "))");
  };
  category("raw material", bar.product);
  category("Raw_Material", glue.product);
  category("part", p.bolt.product);
  p.file.Add("MAKE_FROM_USAGE_OPTION('1','','',#" + std::to_string(p.bolt.definition) + ",#" +
             std::to_string(bar.definition) + ",$,1,'',$)");
  p.file.Usage(p.pump, p.bolt);
  const StepAssembly without = p.file.Read();
  EXPECT_EQ(without.models.size(), 2u);
  EXPECT_EQ(without.tops, std::vector<int>{1});
  EXPECT_TRUE(HasNote(without, "2 products left out: they are raw material, no parts"));

  p.file.Usage(p.pump, glue);
  EXPECT_EQ(p.file.Read().models.size(), 3u);
}

TEST(StepProduct, AComponentInAnotherFileStaysAComponent) {
  const StepAssembly assembly = ReadStepAssembly(StepFile::Parse(
      "ISO-10303-21;HEADER;ENDSEC;REFERENCE;#9=<lib/nut%20M6.stp#4>;ENDSEC;DATA;"
      "#1=PRODUCT('p','pump','',());#2=PRODUCT_DEFINITION_FORMATION('','',#1);"
      "#3=PRODUCT_DEFINITION('','',#2,$);"
      "#4=NEXT_ASSEMBLY_USAGE_OCCURRENCE('','','',#3,#9,$);ENDSEC;END-ISO-10303-21;",
      "pump.stp"));
  ASSERT_EQ(assembly.models.size(), 2u);
  EXPECT_EQ(assembly.models[1].name, "nut%20M6");
  EXPECT_TRUE(HasNote(assembly, "lies in nut%20M6.stp, which is not read"));
}

TEST(StepProduct, BrokenStructureIsRefusedWithItsLine) {
  {
    StepPair p;
    const int closing = p.file.Usage(p.pump, p.bolt);
    p.file.Usage(p.bolt, p.pump);
    ExpectRefused(p.file, closing, "puts bolt inside itself");
  }
  {
    StepPair p;
    ExpectRefused(p.file, p.file.Usage(p.pump, {0, 4711, 0}), "names #4711, which is not in the");
  }
  {
    StepPair p;
    ExpectRefused(p.file, p.file.Usage(p.pump, {0, p.context, 0}));
  }
  {
    StepPair p;
    p.file.Place(p.file.Usage(p.pump, p.bolt), p.bolt.representation, p.pump.representation, p.from,
                 p.context);
    ExpectRefused(p.file, p.context);
  }
  {
    Builder file;  // a representation that shows itself
    const int context = file.Metric(".MILLI."), origin = file.Axis("0.,0.,0.");
    const int next = origin + 1;
    const int shown = file.Mapped(next + 2, origin, origin);
    ASSERT_EQ(file.Representation({shown}, context), next + 2);
    const auto part = file.Product("part", {origin}, context);
    file.Relate(part.representation, next + 2);
    ExpectRefused(file, shown);
  }
  ExpectError(ErrorFrom([] { Builder().Read(); }), "", "holds no product");
}

TEST(StepProduct, DeepAndWideAssembliesNeedNoStackAndLittleTime) {
  Builder file;
  const int context = file.Metric(".MILLI.");
  const int origin = file.Axis("0.,0.,0.");
  std::vector<Builder::Part> chain;
  for (int i = 0; i < 10'000; ++i) {
    chain.push_back(file.Product("level " + std::to_string(i), {origin}, context));
    if (i > 0) file.Usage(chain[i - 1], chain[i]);
  }
  for (int i = 0; i < 50'000; ++i) file.Usage(chain[0], chain.back());
  const StepAssembly assembly = file.Read();
  EXPECT_EQ(assembly.models.size(), 10'000u);
  EXPECT_EQ(assembly.models[0].components.size(), 50'001u);
  EXPECT_EQ(assembly.tops, std::vector<int>{0});
}

}  // namespace
}  // namespace wb
