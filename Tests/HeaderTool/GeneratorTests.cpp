// What the generator writes for a parsed header: the facts the engine's registration code and the
// compiled module depend on, asserted one at a time rather than as whole files.
#include "Generator.h"
#include "Parser.h"
#include "TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <regex>

using namespace HeaderTool;
using namespace HeaderToolTests;
using testing::HasSubstr;
using testing::Not;

namespace
{
	// Engine flag values, written out here rather than taken from the tool.
	constexpr uint64_t CPF_Edit = 0x1;
	constexpr uint64_t CPF_ConstParm = 0x2;
	constexpr uint64_t CPF_BlueprintVisible = 0x4;
	constexpr uint64_t CPF_ExportObject = 0x8;
	constexpr uint64_t CPF_BlueprintReadOnly = 0x10;
	constexpr uint64_t CPF_Parm = 0x80;
	constexpr uint64_t CPF_OutParm = 0x100;
	constexpr uint64_t CPF_ReturnParm = 0x400;
	constexpr uint64_t CPF_Transient = 0x2000;
	constexpr uint64_t CPF_Config = 0x4000;
	constexpr uint64_t CPF_DisableEditOnInstance = 0x10000;
	constexpr uint64_t CPF_EditConst = 0x20000;
	constexpr uint64_t CPF_InstancedReference = 0x80000;
	constexpr uint64_t CPF_SaveGame = 0x1000000;
	constexpr uint64_t CPF_ReferenceParm = 0x8000000;
	constexpr uint64_t CPF_BlueprintAssignable = 0x10000000;
	constexpr uint64_t CPF_PersistentInstance = 0x2000000000000ull;
	constexpr uint64_t CPF_NativeAccessSpecifierPublic = 0x10000000000000ull;
	constexpr uint64_t CPF_NativeAccessSpecifierProtected = 0x20000000000000ull;
	constexpr uint64_t CPF_NativeAccessSpecifierPrivate = 0x40000000000000ull;

	constexpr uint32_t FUNC_Final = 0x1;
	constexpr uint32_t FUNC_Native = 0x400;
	constexpr uint32_t FUNC_Event = 0x800;
	constexpr uint32_t FUNC_Static = 0x2000;
	constexpr uint32_t FUNC_MulticastDelegate = 0x10000;
	constexpr uint32_t FUNC_Public = 0x20000;
	constexpr uint32_t FUNC_Private = 0x40000;
	constexpr uint32_t FUNC_Protected = 0x80000;
	constexpr uint32_t FUNC_Delegate = 0x100000;
	constexpr uint32_t FUNC_HasOutParms = 0x400000;
	constexpr uint32_t FUNC_HasDefaults = 0x800000;
	constexpr uint32_t FUNC_BlueprintCallable = 0x4000000;
	constexpr uint32_t FUNC_BlueprintEvent = 0x8000000;
	constexpr uint32_t FUNC_BlueprintPure = 0x10000000;
	constexpr uint32_t FUNC_Const = 0x40000000;

	constexpr uint32_t CLASS_Abstract = 0x1;
	constexpr uint32_t CLASS_DefaultConfig = 0x2;
	constexpr uint32_t CLASS_Config = 0x4;
	constexpr uint32_t CLASS_Transient = 0x8;

	const std::string HeaderPath = "/checkout/Plugins/QuorvelSDK/Source/QuorvelUI/Public/GenPanel.h";
	const std::string FileId = "FID_QuorvelUI_Public_GenPanel_h";

	struct FGenerated
	{
		std::string Header;
		std::string Source;
		std::string Init;
	};

	// Parses Text as GenPanel.h of module QuorvelUI and generates it into a folder of its own.
	FGenerated Generate(const std::string& Text)
	{
		FModuleModel Module;
		Module.ModuleName = "QuorvelUI";
		Module.Headers.emplace_back();
		std::vector<std::string> Errors;
		EXPECT_TRUE(ParseHeaderText(HeaderPath, Text, Module.Headers.back(), Errors)) << (Errors.empty() ? "" : Errors.front());
		EXPECT_TRUE(ValidateModule(Module, Errors)) << (Errors.empty() ? "" : Errors.front());

		const testing::TestInfo* Test = testing::UnitTest::GetInstance()->current_test_info();
		const std::filesystem::path Dir = std::filesystem::path(testing::TempDir()) / "Generated"
			/ (std::string(Test->test_suite_name()) + "." + Test->name());
		std::filesystem::remove_all(Dir);
		EXPECT_TRUE(GenerateModule(Module, Dir.string(), Errors)) << (Errors.empty() ? "" : Errors.front());
		return {ReadText(Dir / "GenPanel.generated.h"), ReadText(Dir / "GenPanel.gen.cpp"), ReadText(Dir / "QuorvelUI.init.gen.cpp")};
	}

	// From the line starting with Start up to and including the next line that is a lone "}" or "};".
	std::string Block(const std::string& Text, const std::string& Start)
	{
		size_t Begin = Text.find("\n" + Start);
		if (Begin == std::string::npos)
		{
			return "";
		}
		++Begin;
		size_t End = Text.find("\n}", Begin);
		End = Text.find('\n', End + 1);
		return Text.substr(Begin, End == std::string::npos ? std::string::npos : End - Begin + 1);
	}

	uint64_t Hex(const std::string& Text)
	{
		return std::stoull(Text, nullptr, 16);
	}

	// The EPropertyFlags a property (or parameter) is registered with, by name.
	uint64_t PropertyFlagsOf(const std::string& Source, const std::string& Name)
	{
		std::smatch Match;
		const std::regex Pattern("TEXT\\(\"" + Name + "\"\\), EPropertyFlags\\(0x([0-9a-f]+)ull\\)");
		if (!std::regex_search(Source, Match, Pattern))
		{
			ADD_FAILURE() << "no property " << Name;
			return 0;
		}
		return Hex(Match[1]);
	}

	// The EFunctionFlags a UFUNCTION or delegate signature is constructed with, by its UFunction name.
	uint32_t FunctionFlagsOf(const std::string& Source, const std::string& Name)
	{
		std::smatch Match;
		const std::regex Pattern("ConstructUFunction\\([^,]+, TEXT\\(\"" + Name + "\"\\), nullptr, EFunctionFlags\\(0x([0-9a-f]+)u\\)");
		if (!std::regex_search(Source, Match, Pattern))
		{
			ADD_FAILURE() << "no function " << Name;
			return 0;
		}
		return static_cast<uint32_t>(Hex(Match[1]));
	}

	// Every SetMetaData(Key, Value) that follows Anchor, up to the next Until.
	std::string MetaDataAfter(const std::string& Text, const std::string& Anchor, const std::string& Until = "\n\n")
	{
		const size_t Begin = Text.find(Anchor);
		if (Begin == std::string::npos)
		{
			return "";
		}
		const size_t End = Text.find(Until, Begin);
		std::string Result;
		const std::string Region = Text.substr(Begin, End - Begin);
		const std::regex Pattern("SetMetaData\\((TEXT\\(\"(?:[^\"\\\\]|\\\\.)*\"\\)), (TEXT\\(\"(?:[^\"\\\\]|\\\\.)*\"\\))");
		for (std::sregex_iterator It(Region.begin(), Region.end(), Pattern), Last; It != Last; ++It)
		{
			Result += (*It)[1].str() + " = " + (*It)[2].str() + "\n";
		}
		return Result;
	}
}

TEST(GeneratedFiles, EveryFileWrittenCarriesTheRevisionOnItsFirstLine)
{
	const FGenerated Files = Generate("#pragma once\n#include \"GenPanel.generated.h\"\nUCLASS()\nclass UGenPanel : public UObject\n{\n\tGENERATED_BODY()\n};\n");
	const std::string Banner = "// Generated by the Quorvel header tool, revision " + std::to_string(HEADER_TOOL_REVISION) + ". Do not edit.\n";
	EXPECT_TRUE(Files.Header.starts_with(Banner)) << Files.Header.substr(0, 100);
	EXPECT_TRUE(Files.Source.starts_with(Banner)) << Files.Source.substr(0, 100);
	EXPECT_TRUE(Files.Init.starts_with(Banner)) << Files.Init.substr(0, 100);
}

TEST(GeneratedFiles, BodyMacrosAreNamedAfterTheFileIdAndTheLineOfTheirMacro)
{
	const FGenerated Files = Generate(
		"#pragma once\n"                                                   // 1
		"#include \"GenPanel.generated.h\"\n"                              // 2
		"DECLARE_DYNAMIC_MULTICAST_DELEGATE(FGenReady);\n"                 // 3
		"USTRUCT()\n"                                                      // 4
		"struct FGenRow\n"                                                 // 5
		"{\n"                                                              // 6
		"\tGENERATED_BODY()\n"                                             // 7
		"};\n"                                                             // 8
		"UCLASS()\n"                                                       // 9
		"class UGenPanel : public UObject\n"                               // 10
		"{\n"                                                              // 11
		"\n"                                                               // 12
		"\tGENERATED_BODY()\n"                                             // 13
		"};\n");
	EXPECT_THAT(Files.Header, HasSubstr("#undef CURRENT_FILE_ID\n#endif\n#define CURRENT_FILE_ID " + FileId + "\n"));
	EXPECT_THAT(Files.Header, HasSubstr("#define " + FileId + "_3_DELEGATE \\\n"));
	EXPECT_THAT(Files.Header, HasSubstr("#define " + FileId + "_7_GENERATED_BODY \\\n"));
	EXPECT_THAT(Files.Header, HasSubstr("#define " + FileId + "_13_GENERATED_BODY \\\n"));
}

TEST(GeneratedFiles, TheModuleInitFileConstructsTheScriptPackageAndRegistersIt)
{
	const FGenerated Files = Generate("#pragma once\nUENUM()\nenum class EGen : uint8 { A };\n");
	EXPECT_THAT(Files.Init, HasSubstr("UPackage* Z_Construct_UPackage__Script_QuorvelUI()\n"));
	EXPECT_THAT(Files.Init, HasSubstr("ConstructUPackage(TEXT(\"/Script/QuorvelUI\"))"));
	EXPECT_THAT(Files.Init, HasSubstr("FRegisterCompiledInInfo Z_CompiledInDefer_Package(&Z_Construct_UPackage__Script_QuorvelUI)"));
	EXPECT_THAT(Files.Source, HasSubstr("#include \"" + HeaderPath + "\"\n"));
}

TEST(GeneratedFiles, OnlyAFileWhoseTextChangedIsRewritten)
{
	const std::string Text = "#pragma once\nUENUM()\nenum class EGen : uint8 { A };\n";
	FModuleModel Module;
	Module.ModuleName = "QuorvelUI";
	Module.Headers.emplace_back();
	std::vector<std::string> Errors;
	ASSERT_TRUE(ParseHeaderText(HeaderPath, Text, Module.Headers.back(), Errors));
	const std::filesystem::path Dir = std::filesystem::path(testing::TempDir()) / "Generated" / "Unchanged";
	std::filesystem::remove_all(Dir);
	ASSERT_TRUE(GenerateModule(Module, Dir.string(), Errors));

	// Date the files back instead of waiting: a rewrite would bring their time forward again.
	const auto Old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24);
	for (const char* Name : {"GenPanel.generated.h", "GenPanel.gen.cpp", "QuorvelUI.init.gen.cpp"})
	{
		std::filesystem::last_write_time(Dir / Name, Old);
	}
	WriteText(Dir / "GenPanel.gen.cpp", "stale");
	std::filesystem::last_write_time(Dir / "GenPanel.gen.cpp", Old);

	ASSERT_TRUE(GenerateModule(Module, Dir.string(), Errors));
	EXPECT_EQ(std::filesystem::last_write_time(Dir / "GenPanel.generated.h"), Old);
	EXPECT_EQ(std::filesystem::last_write_time(Dir / "QuorvelUI.init.gen.cpp"), Old);
	EXPECT_NE(ReadText(Dir / "GenPanel.gen.cpp"), "stale");
}

TEST(GeneratedClass, WithoutAConstructorOfItsOwnGetsTheObjectInitializerConstructor)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n\tvoid Refresh();\n};\n"
		"UCLASS()\nclass UGenOwnConstructor : public UObject\n{\n\tGENERATED_BODY()\npublic:\n\tUGenOwnConstructor(const FObjectInitializer& Init);\n};\n"
		"UCLASS()\nclass UGenDefaulted : public UObject\n{\n\tGENERATED_BODY()\n\tUGenDefaulted() = default;\n\t~UGenDefaulted();\n};\n"
		"UINTERFACE()\nclass UGenTarget : public UInterface\n{\n\tGENERATED_BODY()\n};\n");
	EXPECT_THAT(Files.Header, HasSubstr("\tUGenPanel(const FObjectInitializer& ObjectInitializer) : Super(ObjectInitializer) {} \\\n"));
	EXPECT_THAT(Files.Header, Not(HasSubstr("UGenOwnConstructor(const FObjectInitializer&")));
	EXPECT_THAT(Files.Header, Not(HasSubstr("UGenDefaulted(const FObjectInitializer&")));
	EXPECT_THAT(Files.Header, Not(HasSubstr("UGenTarget(const FObjectInitializer&")));
}

TEST(GeneratedClass, DeclaresItselfWithItsSuperClassFlagsAndPackage)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS(Abstract, Transient, config=Game, defaultconfig, Within=GenOwner)\n"
		"class UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\n};\n");
	std::smatch Match;
	ASSERT_TRUE(std::regex_search(Files.Header, Match, std::regex(
		"DECLARE_CLASS\\(UGenPanel, UUserWidget, 0x([0-9a-f]{8})u, CASTCLASS_None, TEXT\\(\"/Script/QuorvelUI\"\\), NO_API\\)")));
	EXPECT_EQ(Hex(Match[1]), CLASS_Abstract | CLASS_Transient | CLASS_Config | CLASS_DefaultConfig);
	EXPECT_THAT(Files.Header, HasSubstr("DECLARE_WITHIN(UGenOwner)"));
	// The config name reaches the class construction; the package name has no prefix letter.
	EXPECT_THAT(Files.Source, HasSubstr("GetPrivateStaticClassBody(StaticPackage(), TEXT(\"GenPanel\"), Singleton"));
	EXPECT_THAT(Files.Source, HasSubstr("::StaticClassCastFlags(), TEXT(\"Game\"), &InternalConstructor<UGenPanel>"));
}

TEST(GeneratedClass, ClassMetadataCarriesTheDocCommentWordForWord)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"/**\n * Shows one \"stash\" as a grid.\n *\n *   Drag\\drop is supported.\n */\n"
		"UCLASS(meta = (DisplayName = \"Stash Panel\"))\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\n};\n");
	EXPECT_EQ(MetaDataAfter(Files.Source, "static void Construct(UClass* Class)"),
		"TEXT(\"DisplayName\") = TEXT(\"Stash Panel\")\n"
		"TEXT(\"ToolTip\") = TEXT(\"Shows one \\\"stash\\\" as a grid.\\n\\nDrag\\\\drop is supported.\")\n");
}

TEST(GeneratedProperties, FlagsFollowTheSpecifiersAndTheAccessSection)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUPROPERTY(EditAnywhere, BlueprintReadWrite)\n\tint32 Columns;\n"
		"\tUPROPERTY(BlueprintAssignable)\n\tFGenReady OnReady;\n"
		"\tUPROPERTY(Config, SaveGame)\n\tFString LastStash;\n"
		"protected:\n"
		"\tUPROPERTY(VisibleAnywhere, BlueprintReadOnly)\n\tfloat Zoom;\n"
		"private:\n"
		"\tUPROPERTY(EditDefaultsOnly, Transient)\n\tbool bDirty;\n"
		"\tUPROPERTY(Instanced)\n\tTObjectPtr<UObject> Layout;\n"
		"};\n");
	EXPECT_EQ(PropertyFlagsOf(Files.Source, "Columns"), CPF_NativeAccessSpecifierPublic | CPF_Edit | CPF_BlueprintVisible);
	EXPECT_EQ(PropertyFlagsOf(Files.Source, "OnReady"), CPF_NativeAccessSpecifierPublic | CPF_BlueprintAssignable);
	EXPECT_EQ(PropertyFlagsOf(Files.Source, "LastStash"), CPF_NativeAccessSpecifierPublic | CPF_Config | CPF_SaveGame);
	EXPECT_EQ(PropertyFlagsOf(Files.Source, "Zoom"),
		CPF_NativeAccessSpecifierProtected | CPF_Edit | CPF_EditConst | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	EXPECT_EQ(PropertyFlagsOf(Files.Source, "bDirty"), CPF_NativeAccessSpecifierPrivate | CPF_Edit | CPF_DisableEditOnInstance | CPF_Transient);
	EXPECT_EQ(PropertyFlagsOf(Files.Source, "Layout"),
		CPF_NativeAccessSpecifierPrivate | CPF_PersistentInstance | CPF_ExportObject | CPF_InstancedReference);
}

TEST(GeneratedProperties, AreAddedAtTheirOffsetWithTheirMetadataAndReferencedClass)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\t/** Cells across. */\n"
		"\tUPROPERTY(EditAnywhere, Category = \"Layout\", meta = (ClampMin = \"1\"))\n\tint32 Columns;\n"
		"\tUPROPERTY(Instanced)\n\tTArray<TObjectPtr<UGenCell>> Cells;\n"
		"};\n");
	EXPECT_THAT(Files.Source, HasSubstr("FProperty* NewProp = UECodeGen_Private::AddProperty<decltype(UGenPanel::Columns)>(Class, TEXT(\"Columns\"), "));
	EXPECT_THAT(Files.Source, HasSubstr("int32(offsetof(UGenPanel, Columns)));\n"));
	EXPECT_EQ(MetaDataAfter(Files.Source, "TEXT(\"Columns\")", "\t\t}\n"),
		"TEXT(\"Category\") = TEXT(\"Layout\")\nTEXT(\"ClampMin\") = TEXT(\"1\")\nTEXT(\"ToolTip\") = TEXT(\"Cells across.\")\n");

	// An instanced reference is edited inline, and the class it points to is declared and passed.
	EXPECT_THAT(Files.Source, HasSubstr("UClass* Z_Construct_UClass_UGenCell_NoRegister();\n"));
	EXPECT_THAT(Files.Source, HasSubstr("int32(offsetof(UGenPanel, Cells)), &Z_Construct_UClass_UGenCell_NoRegister);\n"));
	EXPECT_THAT(MetaDataAfter(Files.Source, "TEXT(\"Cells\")", "\t\t}\n"), HasSubstr("TEXT(\"EditInline\") = TEXT(\"true\")\n"));
}

TEST(GeneratedProperties, EachReferencedClassIsDeclaredOnceWhereverItIsUsed)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"DECLARE_DYNAMIC_DELEGATE_OneParam(FGenPicked, UGenCell*, Cell);\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUPROPERTY()\n\tTObjectPtr<UGenCell> Selected;\n"
		"\tUPROPERTY()\n\tTWeakObjectPtr<UGenCell> Hovered;\n"
		"\tUPROPERTY()\n\tTSubclassOf<UGenCell> CellClass;\n"
		"\tUPROPERTY()\n\tUClass* AnyClass;\n"
		"\tUFUNCTION(BlueprintCallable)\n\tUGenCell* Pick(UGenCell* Near);\n"
		"};\n");
	const std::string Declaration = "UClass* Z_Construct_UClass_UGenCell_NoRegister();\n";
	const size_t First = Files.Source.find(Declaration);
	ASSERT_NE(First, std::string::npos);
	EXPECT_EQ(Files.Source.find(Declaration, First + 1), std::string::npos);
	EXPECT_THAT(Files.Source, HasSubstr("int32(offsetof(UGenPanel, CellClass)), &Z_Construct_UClass_UGenCell_NoRegister);"));
	// UClass* itself names no class to load first.
	EXPECT_THAT(Files.Source, HasSubstr("int32(offsetof(UGenPanel, AnyClass)));"));
	EXPECT_THAT(Files.Source, Not(HasSubstr("Z_Construct_UClass_UClass_NoRegister")));
}

TEST(GeneratedStruct, RegistersUnderItsNameWithoutPrefixAndChainsToItsSuperStruct)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"USTRUCT(BlueprintType)\nstruct FGenRow : public FGenBase\n{\n\tGENERATED_BODY()\n"
		"\tUPROPERTY()\n\tint32 Count = 0;\n};\n");
	EXPECT_THAT(Files.Header, HasSubstr("\tstatic class UScriptStruct* StaticStruct(); \\\n\ttypedef FGenBase Super;\n"));
	EXPECT_THAT(Files.Header, HasSubstr("template<> UScriptStruct* StaticStruct<struct FGenRow>();\n"));
	EXPECT_THAT(Files.Source, HasSubstr("ConstructUScriptStruct(Z_Construct_UPackage__Script_QuorvelUI(), TEXT(\"GenRow\"), FGenBase::StaticStruct(), "
		"new UScriptStruct::TCppStructOps<FGenRow>(), STRUCT_Native);\n"));
	EXPECT_THAT(Files.Source, HasSubstr("AddProperty<decltype(FGenRow::Count)>(Struct, TEXT(\"Count\"), "));
}

TEST(GeneratedStruct, WithoutASuperStructHasNoSuperTypedefAndNoSuperStruct)
{
	const FGenerated Files = Generate("#pragma once\nUSTRUCT()\nstruct FGenCell\n{\n\tGENERATED_BODY()\n};\n");
	EXPECT_THAT(Files.Header, HasSubstr("\tstatic class UScriptStruct* StaticStruct();\n\n"));
	EXPECT_THAT(Files.Header, Not(HasSubstr("Super;")));
	EXPECT_THAT(Files.Source, HasSubstr("TEXT(\"GenCell\"), nullptr, new UScriptStruct::TCppStructOps<FGenCell>(), STRUCT_Native);\n"));
}

TEST(GeneratedEnum, ListsEveryValueAndKeepsEachValuesMetadataAtItsIndex)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UENUM(BlueprintType)\nenum class EGenLayout : uint8\n{\n"
		"\tGrid UMETA(DisplayName = \"Grid view\"),\n"
		"\t/** One per row. */\n\tList = 4,\n"
		"};\n");
	EXPECT_THAT(Files.Header, HasSubstr("#define FOREACH_ENUM_EGENLAYOUT(op) \\\n\top(EGenLayout::Grid) \\\n\top(EGenLayout::List)\n"));
	EXPECT_THAT(Files.Header, HasSubstr("enum class EGenLayout : uint8;\n"));
	EXPECT_THAT(Files.Header, HasSubstr("template<> UEnum* StaticEnum<EGenLayout>();\n"));
	EXPECT_THAT(Files.Source, HasSubstr("\t\t\t{TEXT(\"EGenLayout::Grid\"), int64(EGenLayout::Grid)},\n\t\t\t{TEXT(\"EGenLayout::List\"), int64(EGenLayout::List)},\n"));
	EXPECT_THAT(Files.Source, HasSubstr("SetMetaData(TEXT(\"DisplayName\"), TEXT(\"Grid view\"), 0);"));
	EXPECT_THAT(Files.Source, HasSubstr("SetMetaData(TEXT(\"ToolTip\"), TEXT(\"One per row.\"), 1);"));
}

TEST(GeneratedEnum, TheNamespacedFormQualifiesItsValuesWithTheNamespaceAlone)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UENUM()\nnamespace EGenOld\n{\n\tenum Type\n\t{\n\t\tFirst,\n\t\tSecond\n\t};\n}\n"
		"UENUM()\nenum EGenPlain\n{\n\tGP_Off,\n\tGP_On\n};\n");
	EXPECT_THAT(Files.Header, HasSubstr("#define FOREACH_ENUM_EGENOLD(op) \\\n\top(EGenOld::First) \\\n\top(EGenOld::Second)\n"));
	EXPECT_THAT(Files.Source, HasSubstr("TEXT(\"EGenOld\"), ")) << "registered under the namespace's name";
	EXPECT_THAT(Files.Source, HasSubstr("ECppForm::Namespaced, {\n\t\t\t{TEXT(\"EGenOld::First\"), int64(EGenOld::First)},\n"));
	// A plain enum's values are unscoped names; neither form gets a StaticEnum specialisation.
	EXPECT_THAT(Files.Source, HasSubstr("ECppForm::Regular, {\n\t\t\t{TEXT(\"GP_Off\"), int64(EGenPlain::GP_Off)},\n"));
	EXPECT_THAT(Files.Source, Not(HasSubstr("StaticEnum<")));
}

namespace
{
	const std::string FunctionsHeader =
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUFUNCTION(BlueprintCallable, Category = \"Stash\")\n\tvoid Deposit(FName ItemId, int32 Quantity = 1, bool bSplit = false);\n"
		"\tUFUNCTION(BlueprintPure)\n\tint32 CountOf(const FString& Name) const;\n"
		"\tUFUNCTION(BlueprintCallable)\n\tbool TryFind(FName ItemId, FGenRow& OutRow, TArray<int32>& OutSlots);\n"
		"\tUFUNCTION(BlueprintCallable)\n\tstatic UGenPanel* FindPanel(UObject* WorldContext);\n"
		"\tUFUNCTION()\n\tvirtual void Refresh();\n"
		"\tUFUNCTION(BlueprintNativeEvent)\n\tvoid OnDeposited(FName ItemId, EGenLayout Layout);\n"
		"\tUFUNCTION(BlueprintImplementableEvent)\n\tvoid OnOpened();\n"
		"protected:\n"
		"\tUFUNCTION(BlueprintCallable)\n\tvoid Layout(const TArray<FGenRow>& Rows, float Scale);\n"
		"private:\n"
		"\tUFUNCTION()\n\tvoid Tick();\n"
		"};\n";
}

TEST(GeneratedFunctions, FlagsFollowTheSpecifiersQualifiersAndAccess)
{
	const FGenerated Files = Generate(FunctionsHeader);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "Deposit"), FUNC_Final | FUNC_Native | FUNC_Public | FUNC_BlueprintCallable | FUNC_HasDefaults);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "CountOf"),
		FUNC_Final | FUNC_Native | FUNC_Public | FUNC_BlueprintCallable | FUNC_BlueprintPure | FUNC_Const | FUNC_HasOutParms);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "TryFind"), FUNC_Final | FUNC_Native | FUNC_Public | FUNC_BlueprintCallable | FUNC_HasOutParms);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "FindPanel"), FUNC_Final | FUNC_Native | FUNC_Public | FUNC_BlueprintCallable | FUNC_Static);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "Refresh"), FUNC_Native | FUNC_Public);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "OnDeposited"), FUNC_Native | FUNC_Event | FUNC_BlueprintEvent | FUNC_Public);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "OnOpened"), FUNC_Event | FUNC_BlueprintEvent | FUNC_Public);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "Layout"), FUNC_Final | FUNC_Native | FUNC_Protected | FUNC_BlueprintCallable | FUNC_HasOutParms);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "Tick"), FUNC_Final | FUNC_Native | FUNC_Private);
}

TEST(GeneratedFunctions, BlueprintPureFalseKeepsAConstFunctionCallableButNotPure)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUFUNCTION(BlueprintPure = false)\n\tint32 Count() const;\n"
		"\tUFUNCTION(BlueprintPure = true)\n\tint32 Total() const;\n"
		"};\n");
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "Count"), FUNC_Final | FUNC_Native | FUNC_Public | FUNC_BlueprintCallable | FUNC_Const);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "Total"),
		FUNC_Final | FUNC_Native | FUNC_Public | FUNC_BlueprintCallable | FUNC_BlueprintPure | FUNC_Const);
}

TEST(GeneratedFunctions, ParameterFlagsTellValuesConstReferencesOutputsAndTheReturnValueApart)
{
	const FGenerated Files = Generate(FunctionsHeader);
	const std::string TryFind = Block(Files.Source, "\tstatic UFunction* Construct_TryFind(");
	const std::string CountOf = Block(Files.Source, "\tstatic UFunction* Construct_CountOf(");
	const uint64_t Public = CPF_NativeAccessSpecifierPublic;
	EXPECT_EQ(PropertyFlagsOf(TryFind, "ItemId"), Public | CPF_Parm);
	EXPECT_EQ(PropertyFlagsOf(TryFind, "OutRow"), Public | CPF_Parm | CPF_OutParm);
	EXPECT_EQ(PropertyFlagsOf(TryFind, "OutSlots"), Public | CPF_Parm | CPF_OutParm);
	EXPECT_EQ(PropertyFlagsOf(TryFind, "ReturnValue"), Public | CPF_Parm | CPF_OutParm | CPF_ReturnParm);
	EXPECT_EQ(PropertyFlagsOf(CountOf, "Name"), Public | CPF_Parm | CPF_OutParm | CPF_ConstParm | CPF_ReferenceParm);
}

TEST(GeneratedFunctions, NativeFunctionsGetAnExecThunkReadingEachParameterInOrder)
{
	const FGenerated Files = Generate(FunctionsHeader);
	EXPECT_THAT(Files.Header, HasSubstr("\tDECLARE_FUNCTION(execDeposit); \\\n"));
	EXPECT_THAT(Files.Header, Not(HasSubstr("execOnOpened")));
	EXPECT_EQ(Block(Files.Source, "DEFINE_FUNCTION(UGenPanel::execTryFind)"),
		"DEFINE_FUNCTION(UGenPanel::execTryFind)\n{\n"
		"\tP_GET_PROPERTY(FNameProperty, Z_Param_ItemId);\n"
		"\tP_GET_STRUCT_REF(FGenRow, Z_Param_Out_OutRow);\n"
		"\tP_GET_TARRAY_REF(int32, Z_Param_Out_OutSlots);\n"
		"\tP_FINISH;\n\tP_NATIVE_BEGIN;\n"
		"\t*(bool*)Z_Param__Result = P_THIS->TryFind(Z_Param_ItemId, Z_Param_Out_OutRow, Z_Param_Out_OutSlots);\n"
		"\tP_NATIVE_END;\n}\n");
	const std::string Deposit = Block(Files.Source, "DEFINE_FUNCTION(UGenPanel::execDeposit)");
	EXPECT_THAT(Deposit, HasSubstr("\tP_GET_UBOOL(Z_Param_bSplit);\n"));
	EXPECT_THAT(Deposit, HasSubstr("\tP_THIS->Deposit(Z_Param_ItemId, Z_Param_Quantity, Z_Param_bSplit);\n"));
	const std::string FindPanel = Block(Files.Source, "DEFINE_FUNCTION(UGenPanel::execFindPanel)");
	EXPECT_THAT(FindPanel, HasSubstr("\tP_GET_OBJECT(UObject, Z_Param_WorldContext);\n"));
	EXPECT_THAT(FindPanel, HasSubstr("\t*(UGenPanel**)Z_Param__Result = ThisClass::FindPanel(Z_Param_WorldContext);\n"));
	// A native event's thunk calls the C++ implementation, not the event.
	const std::string OnDeposited = Block(Files.Source, "DEFINE_FUNCTION(UGenPanel::execOnDeposited)");
	EXPECT_THAT(OnDeposited, HasSubstr("\tP_GET_ENUM(EGenLayout, Z_Param_Layout);\n"));
	EXPECT_THAT(OnDeposited, HasSubstr("\tP_THIS->OnDeposited_Implementation(Z_Param_ItemId, Z_Param_Layout);\n"));

	const std::string Natives = Block(Files.Source, "void UGenPanel::StaticRegisterNativesUGenPanel()");
	EXPECT_THAT(Natives, HasSubstr("\t\t{\"Deposit\", &UGenPanel::execDeposit},\n"));
	EXPECT_THAT(Natives, HasSubstr("\t\t{\"OnDeposited\", &UGenPanel::execOnDeposited},\n"));
	EXPECT_THAT(Natives, Not(HasSubstr("OnOpened")));
}

TEST(GeneratedFunctions, DefaultArgumentsBecomeCppDefaultMetadataBeforeTheToolTip)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\t/** Moves a stack into the stash. */\n"
		"\tUFUNCTION(BlueprintCallable, Category = \"Stash\")\n"
		"\tvoid Deposit(FName ItemId = NAME_None, int32 Quantity = 1, float Scale = 0.5f, bool bSplit = false, const FString& Note = TEXT(\"Hi\"));\n"
		"};\n");
	EXPECT_EQ(MetaDataAfter(Files.Source, "\tstatic UFunction* Construct_Deposit("),
		"TEXT(\"Category\") = TEXT(\"Stash\")\n"
		"TEXT(\"CPP_Default_ItemId\") = TEXT(\"None\")\n"
		"TEXT(\"CPP_Default_Quantity\") = TEXT(\"1\")\n"
		"TEXT(\"CPP_Default_Scale\") = TEXT(\"0.500000\")\n"
		"TEXT(\"CPP_Default_bSplit\") = TEXT(\"false\")\n"
		"TEXT(\"CPP_Default_Note\") = TEXT(\"Hi\")\n"
		"TEXT(\"ToolTip\") = TEXT(\"Moves a stack into the stash.\")\n");
}

TEST(GeneratedEvents, AnImplementableEventCallsProcessEventWithItsParametersLaidOutAsItsSignature)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUFUNCTION(BlueprintImplementableEvent)\n"
		"\tint32 OnScored(FName ItemId, const FGenRow& Row, int32& OutSlot, UObject* Source) const;\n"
		"};\n");
	EXPECT_THAT(Files.Source, HasSubstr("static FName NAME_UGenPanel_OnScored = FName(TEXT(\"OnScored\"));\n"));
	EXPECT_EQ(Block(Files.Source, "struct GenPanel_eventOnScored_Parms"),
		"struct GenPanel_eventOnScored_Parms\n{\n"
		"\tFName ItemId{};\n\tFGenRow Row{};\n\tint32 OutSlot{};\n\tUObject* Source{};\n\tint32 ReturnValue{};\n"
		"};\n");
	EXPECT_EQ(Block(Files.Source, "int32 UGenPanel::OnScored("),
		"int32 UGenPanel::OnScored(FName ItemId, const FGenRow& Row, int32& OutSlot, UObject* Source) const\n{\n"
		"\tGenPanel_eventOnScored_Parms Parms;\n"
		"\tParms.ItemId = ItemId;\n\tParms.Row = Row;\n\tParms.OutSlot = OutSlot;\n\tParms.Source = Source;\n"
		"\tconst_cast<UGenPanel*>(this)->ProcessEvent(FindFunctionChecked(NAME_UGenPanel_OnScored), &Parms);\n"
		"\tOutSlot = Parms.OutSlot;\n"
		"\treturn Parms.ReturnValue;\n"
		"}\n");
	// The function is registered with the same block: its size and each member's offset.
	const std::string Construct = Block(Files.Source, "\tstatic UFunction* Construct_OnScored(");
	EXPECT_THAT(Construct, HasSubstr("int32(sizeof(GenPanel_eventOnScored_Parms)), false);"));
	EXPECT_THAT(Construct, HasSubstr("AddProperty<decltype(GenPanel_eventOnScored_Parms::Source)>(Function, TEXT(\"Source\"), "));
	EXPECT_THAT(Construct, HasSubstr("int32(offsetof(GenPanel_eventOnScored_Parms, Source)), &Z_Construct_UClass_UObject_NoRegister);"));
}

TEST(GeneratedEvents, AnEventWithoutParametersPassesNoParameterBlock)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUFUNCTION(BlueprintImplementableEvent)\n\tvoid OnOpened();\n"
		"};\n");
	EXPECT_EQ(Block(Files.Source, "void UGenPanel::OnOpened("),
		"void UGenPanel::OnOpened()\n{\n\tProcessEvent(FindFunctionChecked(NAME_UGenPanel_OnOpened), nullptr);\n}\n");
	EXPECT_THAT(Files.Source, Not(HasSubstr("GenPanel_eventOnOpened_Parms")));
	EXPECT_THAT(Block(Files.Source, "\tstatic UFunction* Construct_OnOpened("), HasSubstr("EFunctionFlags(0x08020800u), 0, false);"));
}

TEST(GeneratedEvents, ANativeEventGetsBothTheProcessEventBodyAndAThunkToItsImplementation)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUFUNCTION(BlueprintNativeEvent)\n\tbool CanAccept(FName ItemId);\n"
		"};\n");
	EXPECT_THAT(Block(Files.Source, "bool UGenPanel::CanAccept("), HasSubstr("\tProcessEvent(FindFunctionChecked(NAME_UGenPanel_CanAccept), &Parms);\n"));
	EXPECT_THAT(Block(Files.Source, "DEFINE_FUNCTION(UGenPanel::execCanAccept)"),
		HasSubstr("\t*(bool*)Z_Param__Result = P_THIS->CanAccept_Implementation(Z_Param_ItemId);\n"));
	EXPECT_THAT(Files.Header, HasSubstr("\tDECLARE_FUNCTION(execCanAccept); \\\n"));
}

TEST(GeneratedEvents, AConstValueParameterIsStoredWithoutItsConstSoTheBlockCanBeFilled)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"UCLASS()\nclass UGenPanel : public UUserWidget\n{\n\tGENERATED_BODY()\npublic:\n"
		"\tUFUNCTION(BlueprintImplementableEvent)\n\tvoid OnCounted(const int32 Count, const FGenRow Row, const UObject* Source);\n"
		"\tUFUNCTION(BlueprintCallable)\n\tvoid Store(const FGenRow Row);\n"
		"};\n");
	EXPECT_EQ(Block(Files.Source, "struct GenPanel_eventOnCounted_Parms"),
		"struct GenPanel_eventOnCounted_Parms\n{\n\tint32 Count{};\n\tFGenRow Row{};\n\tconst UObject* Source{};\n};\n");
	// The signature itself keeps the const it was declared with.
	EXPECT_THAT(Files.Source, HasSubstr("void UGenPanel::OnCounted(const int32 Count, const FGenRow Row, const UObject* Source)\n"));
	EXPECT_THAT(Block(Files.Source, "DEFINE_FUNCTION(UGenPanel::execStore)"), HasSubstr("\tP_GET_STRUCT(FGenRow, Z_Param_Row);\n"));
}

TEST(GeneratedDelegates, SignatureFunctionsAreOwnedByThePackageAndNamedAfterTheDelegate)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"/** Fires once the stash has loaded. */\n"
		"DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FGenLoaded, int32, Count, const FString&, Name);\n"
		"DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(bool, FGenFilter, FName, ItemId);\n"
		"DECLARE_DYNAMIC_DELEGATE(FGenPing);\n");
	EXPECT_THAT(Files.Source, HasSubstr("UFunction* Z_Construct_UDelegateFunction_FGenLoaded__DelegateSignature()\n"));
	EXPECT_THAT(Files.Source, HasSubstr("ConstructUFunction(Z_Construct_UPackage__Script_QuorvelUI(), TEXT(\"GenLoaded__DelegateSignature\"), nullptr, "));
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "GenLoaded__DelegateSignature"), FUNC_Public | FUNC_Delegate | FUNC_MulticastDelegate | FUNC_HasOutParms);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "GenFilter__DelegateSignature"), FUNC_Public | FUNC_Delegate);
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "GenPing__DelegateSignature"), FUNC_Public | FUNC_Delegate);
	EXPECT_EQ(MetaDataAfter(Files.Source, "UFunction* Z_Construct_UDelegateFunction_FGenLoaded__DelegateSignature()"),
		"TEXT(\"ToolTip\") = TEXT(\"Fires once the stash has loaded.\")\n");
	EXPECT_THAT(Files.Header, HasSubstr("\tUFunction* Z_Construct_UDelegateFunction_FGenLoaded__DelegateSignature(); \\\n"));
}

TEST(GeneratedDelegates, WrappersCopyArgumentsIntoTheBlockAndReturnItsResult)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FGenLoaded, int32, Count, const FString&, Name);\n"
		"DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(bool, FGenFilter, FName, ItemId);\n"
		"DECLARE_DYNAMIC_DELEGATE(FGenPing);\n");
	EXPECT_EQ(Block(Files.Source, "struct _Script_QuorvelUI_eventGenLoaded_Parms"),
		"struct _Script_QuorvelUI_eventGenLoaded_Parms\n{\n\tint32 Count{};\n\tFString Name{};\n};\n");
	EXPECT_EQ(Block(Files.Source, "void FGenLoaded_DelegateWrapper("),
		"void FGenLoaded_DelegateWrapper(const FMulticastScriptDelegate& GenLoaded, int32 Count, const FString& Name)\n{\n"
		"\t_Script_QuorvelUI_eventGenLoaded_Parms Parms;\n\tParms.Count = Count;\n\tParms.Name = Name;\n"
		"\tGenLoaded.ProcessMulticastDelegate<UObject>(&Parms);\n}\n");
	EXPECT_EQ(Block(Files.Source, "bool FGenFilter_DelegateWrapper("),
		"bool FGenFilter_DelegateWrapper(const FScriptDelegate& GenFilter, FName ItemId)\n{\n"
		"\t_Script_QuorvelUI_eventGenFilter_Parms Parms;\n\tParms.ItemId = ItemId;\n"
		"\tGenFilter.ProcessDelegate<UObject>(&Parms);\n\treturn Parms.ReturnValue;\n}\n");
	EXPECT_EQ(Block(Files.Source, "void FGenPing_DelegateWrapper("),
		"void FGenPing_DelegateWrapper(const FScriptDelegate& GenPing)\n{\n\tGenPing.ProcessDelegate<UObject>(nullptr);\n}\n");
	// The generated header declares the same wrappers the source defines.
	EXPECT_THAT(Files.Header, HasSubstr("\tbool FGenFilter_DelegateWrapper(const FScriptDelegate& GenFilter, FName ItemId);\n"));
}

TEST(GeneratedDelegates, AWrapperCopiesNonConstReferenceArgumentsBackAfterTheCall)
{
	const FGenerated Files = Generate(
		"#pragma once\n"
		"DECLARE_DYNAMIC_DELEGATE_TwoParams(FGenFill, TArray<int32>&, Slots, const FGenRow&, Row);\n");
	EXPECT_EQ(Block(Files.Source, "void FGenFill_DelegateWrapper("),
		"void FGenFill_DelegateWrapper(const FScriptDelegate& GenFill, TArray<int32>& Slots, const FGenRow& Row)\n{\n"
		"\t_Script_QuorvelUI_eventGenFill_Parms Parms;\n\tParms.Slots = Slots;\n\tParms.Row = Row;\n"
		"\tGenFill.ProcessDelegate<UObject>(&Parms);\n\tSlots = Parms.Slots;\n}\n");
	EXPECT_EQ(FunctionFlagsOf(Files.Source, "GenFill__DelegateSignature"), FUNC_Public | FUNC_Delegate | FUNC_HasOutParms);
}

