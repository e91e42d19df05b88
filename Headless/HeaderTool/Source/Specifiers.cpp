#include "Specifiers.h"

#include <algorithm>
#include <cctype>
#include <span>

namespace HeaderTool
{
	namespace
	{
		constexpr std::string_view ClassSpecifiers[] = {
			"Abstract", "AdvancedClassDisplay", "AutoCollapseCategories", "AutoExpandCategories", "Blueprintable",
			"BlueprintType", "ClassGroup", "CollapseCategories", "Config", "Const", "ConversionRoot", "CustomConstructor",
			"CustomFieldNotify", "DefaultConfig", "DefaultToInstanced", "DependsOn", "Deprecated",
			"DontAutoCollapseCategories", "DontCollapseCategories", "EditInlineNew", "GlobalUserConfig", "HideCategories",
			"HideDropdown", "HideFunctions", "Intrinsic", "MinimalAPI", "NoExport", "NonTransient", "NotBlueprintable",
			"NotBlueprintType", "NotEditInlineNew", "NotPlaceable", "Optional", "PerObjectConfig", "PerPlatformConfig",
			"Placeable", "PrioritizeCategories", "ProjectUserConfig", "ShowCategories", "ShowFunctions",
			"SparseClassDataType", "Transient", "Within", "ConfigDoNotCheckDefaults", "EarlyAccessPreview", "Experimental",
		};

		constexpr std::string_view InterfaceSpecifiers[] = {
			"Blueprintable", "BlueprintType", "ConversionRoot", "DependsOn", "MinimalAPI", "NotBlueprintable",
			"NotBlueprintType",
		};

		constexpr std::string_view StructSpecifiers[] = {
			"Atomic", "BlueprintType", "HasDefaults", "HasNoOpConstructor", "Immutable", "IsAlwaysAccessible",
			"IsCoreType", "NoExport",
		};

		constexpr std::string_view EnumSpecifiers[] = {"BlueprintType", "Flags"};

		constexpr std::string_view PropertySpecifiers[] = {
			"AdvancedDisplay", "AssetRegistrySearchable", "BlueprintAssignable", "BlueprintAuthorityOnly",
			"BlueprintCallable", "BlueprintGetter", "BlueprintReadOnly", "BlueprintReadWrite", "BlueprintSetter",
			"Category", "Config", "DuplicateTransient", "EditAnywhere", "EditDefaultsOnly", "EditFixedSize",
			"EditInstanceOnly", "Export", "FieldNotify", "Getter", "GlobalConfig", "Instanced", "Interp", "Localized",
			"NoClear", "NonPIEDuplicateTransient", "NonPIETransient", "NonTransactional", "NotReplicated", "Ref",
			"Replicated", "ReplicatedUsing", "RepRetry", "SaveGame", "Setter", "SimpleDisplay", "SkipSerialization",
			"TextExportTransient", "Transient", "VisibleAnywhere", "VisibleDefaultsOnly", "VisibleInstanceOnly",
		};

		constexpr std::string_view FunctionSpecifiers[] = {
			"BlueprintAuthorityOnly", "BlueprintCallable", "BlueprintCosmetic", "BlueprintGetter",
			"BlueprintImplementableEvent", "BlueprintInternalUseOnly", "BlueprintNativeEvent", "BlueprintPure",
			"BlueprintSetter", "CallInEditor", "Category", "Client", "Const", "CustomThunk", "Exec", "FieldNotify",
			"NetMulticast", "Reliable", "SealedEvent", "Server", "ServiceRequest", "ServiceResponse", "Unreliable",
			"Variadic", "WithValidation",
		};

		constexpr std::string_view DelegateSpecifiers[] = {"BlueprintAuthorityOnly", "BlueprintCallable"};

		std::span<const std::string_view> Table(ESpecifierOwner Owner)
		{
			switch (Owner)
			{
			case ESpecifierOwner::Class:
				return ClassSpecifiers;
			case ESpecifierOwner::Interface:
				return InterfaceSpecifiers;
			case ESpecifierOwner::Struct:
				return StructSpecifiers;
			case ESpecifierOwner::Enum:
				return EnumSpecifiers;
			case ESpecifierOwner::Property:
				return PropertySpecifiers;
			case ESpecifierOwner::Function:
				return FunctionSpecifiers;
			case ESpecifierOwner::Delegate:
				return DelegateSpecifiers;
			}
			return {};
		}
	}

	std::string_view MacroName(ESpecifierOwner Owner)
	{
		switch (Owner)
		{
		case ESpecifierOwner::Class:
			return "UCLASS";
		case ESpecifierOwner::Interface:
			return "UINTERFACE";
		case ESpecifierOwner::Struct:
			return "USTRUCT";
		case ESpecifierOwner::Enum:
			return "UENUM";
		case ESpecifierOwner::Property:
			return "UPROPERTY";
		case ESpecifierOwner::Function:
			return "UFUNCTION";
		case ESpecifierOwner::Delegate:
			return "UDELEGATE";
		}
		return "";
	}

	bool EqualsIgnoreCase(std::string_view A, std::string_view B)
	{
		return A.size() == B.size() && std::equal(A.begin(), A.end(), B.begin(), [](char X, char Y)
		{
			return std::tolower(static_cast<unsigned char>(X)) == std::tolower(static_cast<unsigned char>(Y));
		});
	}

	bool IsKnownSpecifier(ESpecifierOwner Owner, std::string_view Name)
	{
		const std::span<const std::string_view> Known = Table(Owner);
		return std::any_of(Known.begin(), Known.end(), [Name](std::string_view Candidate)
		{
			return EqualsIgnoreCase(Candidate, Name);
		});
	}
}
