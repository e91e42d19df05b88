#include "GeneratorFlags.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace HeaderTool
{
	namespace
	{
		bool EqualsIgnoreCase(const std::string& A, const std::string& B)
		{
			return A.size() == B.size() && std::equal(A.begin(), A.end(), B.begin(), [](char X, char Y)
			{
				return std::tolower(static_cast<unsigned char>(X)) == std::tolower(static_cast<unsigned char>(Y));
			});
		}

		// EPropertyFlags
		constexpr uint64_t CPF_Edit = 0x1;
		constexpr uint64_t CPF_ConstParm = 0x2;
		constexpr uint64_t CPF_BlueprintVisible = 0x4;
		constexpr uint64_t CPF_ExportObject = 0x8;
		constexpr uint64_t CPF_BlueprintReadOnly = 0x10;
		constexpr uint64_t CPF_EditFixedSize = 0x40;
		constexpr uint64_t CPF_Parm = 0x80;
		constexpr uint64_t CPF_OutParm = 0x100;
		constexpr uint64_t CPF_ReturnParm = 0x400;
		constexpr uint64_t CPF_DisableEditOnTemplate = 0x800;
		constexpr uint64_t CPF_Transient = 0x2000;
		constexpr uint64_t CPF_Config = 0x4000;
		constexpr uint64_t CPF_DisableEditOnInstance = 0x10000;
		constexpr uint64_t CPF_EditConst = 0x20000;
		constexpr uint64_t CPF_GlobalConfig = 0x40000;
		constexpr uint64_t CPF_InstancedReference = 0x80000;
		constexpr uint64_t CPF_DuplicateTransient = 0x200000;
		constexpr uint64_t CPF_SaveGame = 0x1000000;
		constexpr uint64_t CPF_NoClear = 0x2000000;
		constexpr uint64_t CPF_ReferenceParm = 0x8000000;
		constexpr uint64_t CPF_BlueprintAssignable = 0x10000000;
		constexpr uint64_t CPF_Deprecated = 0x20000000;
		constexpr uint64_t CPF_Interp = 0x200000000ull;
		constexpr uint64_t CPF_NonTransactional = 0x400000000ull;
		constexpr uint64_t CPF_ContainsInstancedReference = 0x8000000000ull;
		constexpr uint64_t CPF_AssetRegistrySearchable = 0x10000000000ull;
		constexpr uint64_t CPF_SimpleDisplay = 0x20000000000ull;
		constexpr uint64_t CPF_AdvancedDisplay = 0x40000000000ull;
		constexpr uint64_t CPF_BlueprintCallable = 0x100000000000ull;
		constexpr uint64_t CPF_BlueprintAuthorityOnly = 0x200000000000ull;
		constexpr uint64_t CPF_TextExportTransient = 0x400000000000ull;
		constexpr uint64_t CPF_NonPIEDuplicateTransient = 0x800000000000ull;
		constexpr uint64_t CPF_ExposeOnSpawn = 0x1000000000000ull;
		constexpr uint64_t CPF_PersistentInstance = 0x2000000000000ull;
		constexpr uint64_t CPF_NativeAccessSpecifierPublic = 0x10000000000000ull;
		constexpr uint64_t CPF_NativeAccessSpecifierProtected = 0x20000000000000ull;
		constexpr uint64_t CPF_NativeAccessSpecifierPrivate = 0x40000000000000ull;

		// EFunctionFlags
		constexpr uint32_t FUNC_Final = 0x1;
		constexpr uint32_t FUNC_BlueprintAuthorityOnly = 0x4;
		constexpr uint32_t FUNC_BlueprintCosmetic = 0x8;
		constexpr uint32_t FUNC_Exec = 0x200;
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

		// EClassFlags
		constexpr uint32_t CLASS_Abstract = 0x1;
		constexpr uint32_t CLASS_DefaultConfig = 0x2;
		constexpr uint32_t CLASS_Config = 0x4;
		constexpr uint32_t CLASS_Transient = 0x8;
		constexpr uint32_t CLASS_PerObjectConfig = 0x400;
		constexpr uint32_t CLASS_EditInlineNew = 0x1000;
		constexpr uint32_t CLASS_CollapseCategories = 0x2000;
		constexpr uint32_t CLASS_Const = 0x10000;
		constexpr uint32_t CLASS_MinimalAPI = 0x80000;
		constexpr uint32_t CLASS_DefaultToInstanced = 0x200000;
		constexpr uint32_t CLASS_Hidden = 0x1000000;
		constexpr uint32_t CLASS_Deprecated = 0x2000000;
		constexpr uint32_t CLASS_HideDropDown = 0x4000000;
		constexpr uint32_t CLASS_GlobalUserConfig = 0x8000000;
		constexpr uint32_t CLASS_ProjectUserConfig = 0x40;

		uint64_t AccessFlags(const std::string& Access)
		{
			if (Access == "private")
			{
				return CPF_NativeAccessSpecifierPrivate;
			}
			if (Access == "protected")
			{
				return CPF_NativeAccessSpecifierProtected;
			}
			return CPF_NativeAccessSpecifierPublic;
		}
	}

	bool HasKey(const FKeyValues& Values, const std::string& Key)
	{
		return std::any_of(Values.begin(), Values.end(), [&Key](const auto& Entry) { return EqualsIgnoreCase(Entry.first, Key); });
	}

	std::string FindValue(const FKeyValues& Values, const std::string& Key)
	{
		for (const auto& Entry : Values)
		{
			if (EqualsIgnoreCase(Entry.first, Key))
			{
				return Entry.second;
			}
		}
		return "";
	}

	uint64_t PropertyFlags(const FPropertyDecl& Property)
	{
		struct FRule
		{
			const char* Specifier;
			uint64_t Flags;
		};
		static const FRule Rules[] = {
			{"EditAnywhere", CPF_Edit},
			{"EditInstanceOnly", CPF_Edit | CPF_DisableEditOnTemplate},
			{"EditDefaultsOnly", CPF_Edit | CPF_DisableEditOnInstance},
			{"VisibleAnywhere", CPF_Edit | CPF_EditConst},
			{"VisibleInstanceOnly", CPF_Edit | CPF_EditConst | CPF_DisableEditOnTemplate},
			{"VisibleDefaultsOnly", CPF_Edit | CPF_EditConst | CPF_DisableEditOnInstance},
			{"BlueprintReadWrite", CPF_BlueprintVisible},
			{"BlueprintReadOnly", CPF_BlueprintVisible | CPF_BlueprintReadOnly},
			{"BlueprintAssignable", CPF_BlueprintAssignable},
			{"BlueprintCallable", CPF_BlueprintCallable},
			{"BlueprintAuthorityOnly", CPF_BlueprintAuthorityOnly},
			{"Config", CPF_Config},
			{"GlobalConfig", CPF_GlobalConfig | CPF_Config},
			{"Transient", CPF_Transient},
			{"DuplicateTransient", CPF_DuplicateTransient},
			{"TextExportTransient", CPF_TextExportTransient},
			{"NonPIEDuplicateTransient", CPF_NonPIEDuplicateTransient},
			{"NonTransactional", CPF_NonTransactional},
			{"Instanced", CPF_PersistentInstance | CPF_ExportObject | CPF_InstancedReference},
			{"Export", CPF_ExportObject},
			{"NoClear", CPF_NoClear},
			{"EditFixedSize", CPF_EditFixedSize},
			{"SaveGame", CPF_SaveGame},
			{"Interp", CPF_Edit | CPF_BlueprintVisible | CPF_Interp},
			{"AssetRegistrySearchable", CPF_AssetRegistrySearchable},
			{"SimpleDisplay", CPF_SimpleDisplay},
			{"AdvancedDisplay", CPF_AdvancedDisplay},
			{"ExposeOnSpawn", CPF_ExposeOnSpawn},
		};
		uint64_t Flags = AccessFlags(Property.Access);
		for (const FRule& Rule : Rules)
		{
			if (HasKey(Property.Specifiers, Rule.Specifier))
			{
				Flags |= Rule.Flags;
			}
		}
		if (HasKey(Property.Specifiers, "Instanced") && Property.Type.Name == "TArray")
		{
			Flags |= CPF_ContainsInstancedReference;
		}
		// A member kept only so old data still loads is named with this suffix.
		static const std::string DeprecatedSuffix = "_DEPRECATED";
		if (Property.Name.size() > DeprecatedSuffix.size() && Property.Name.compare(Property.Name.size() - DeprecatedSuffix.size(), DeprecatedSuffix.size(), DeprecatedSuffix) == 0)
		{
			Flags |= CPF_Deprecated;
		}
		return Flags;
	}

	uint64_t ParamFlags(const FTypeRef& Type, bool bReturnValue)
	{
		uint64_t Flags = CPF_Parm | CPF_NativeAccessSpecifierPublic;
		if (bReturnValue)
		{
			return Flags | CPF_OutParm | CPF_ReturnParm;
		}
		if (Type.bReference)
		{
			Flags |= CPF_OutParm;
			if (Type.bConst)
			{
				Flags |= CPF_ConstParm | CPF_ReferenceParm;
			}
		}
		else if (Type.bConst && !Type.bPointer)
		{
			Flags |= CPF_ConstParm;
		}
		return Flags;
	}

	bool IsEvent(const FFunctionDecl& Function)
	{
		return HasKey(Function.Specifiers, "BlueprintImplementableEvent") || HasKey(Function.Specifiers, "BlueprintNativeEvent");
	}

	bool IsNativeEvent(const FFunctionDecl& Function)
	{
		return HasKey(Function.Specifiers, "BlueprintNativeEvent");
	}

	bool IsNative(const FFunctionDecl& Function)
	{
		return !HasKey(Function.Specifiers, "BlueprintImplementableEvent");
	}

	namespace
	{
		uint32_t ParamDerivedFlags(const std::vector<FParamDecl>& Params)
		{
			uint32_t Flags = 0;
			for (const FParamDecl& Param : Params)
			{
				if (Param.Type.bReference)
				{
					Flags |= FUNC_HasOutParms;
				}
				if (!Param.DefaultValue.empty())
				{
					Flags |= FUNC_HasDefaults;
				}
			}
			return Flags;
		}
	}

	uint32_t FunctionFlags(const FFunctionDecl& Function)
	{
		uint32_t Flags = ParamDerivedFlags(Function.Params);
		if (IsNative(Function))
		{
			Flags |= FUNC_Native;
		}
		if (IsEvent(Function))
		{
			Flags |= FUNC_Event | FUNC_BlueprintEvent;
		}
		else if (!Function.bVirtual)
		{
			// A native function nothing can override.
			Flags |= FUNC_Final;
		}
		if (HasKey(Function.Specifiers, "BlueprintCallable"))
		{
			Flags |= FUNC_BlueprintCallable;
		}
		if (HasKey(Function.Specifiers, "BlueprintPure"))
		{
			// BlueprintPure = false still makes the function callable, only not pure.
			Flags |= FUNC_BlueprintCallable;
			if (!EqualsIgnoreCase(FindValue(Function.Specifiers, "BlueprintPure"), "false"))
			{
				Flags |= FUNC_BlueprintPure;
			}
		}
		if (HasKey(Function.Specifiers, "Exec"))
		{
			Flags |= FUNC_Exec;
		}
		if (HasKey(Function.Specifiers, "BlueprintAuthorityOnly"))
		{
			Flags |= FUNC_BlueprintAuthorityOnly;
		}
		if (HasKey(Function.Specifiers, "BlueprintCosmetic"))
		{
			Flags |= FUNC_BlueprintCosmetic;
		}
		if (Function.bConst)
		{
			Flags |= FUNC_Const;
		}
		if (Function.bStatic)
		{
			Flags |= FUNC_Static | FUNC_Final;
		}
		if (Function.Access == "private")
		{
			Flags |= FUNC_Private;
		}
		else if (Function.Access == "protected")
		{
			Flags |= FUNC_Protected;
		}
		else
		{
			Flags |= FUNC_Public;
		}
		return Flags;
	}

	uint32_t DelegateFunctionFlags(const FDelegateDecl& Delegate)
	{
		uint32_t Flags = ParamDerivedFlags(Delegate.Params) | FUNC_Public | FUNC_Delegate;
		if (Delegate.bMulticast)
		{
			Flags |= FUNC_MulticastDelegate;
		}
		return Flags;
	}

	uint32_t ClassFlags(const FClassDecl& Class)
	{
		struct FRule
		{
			const char* Specifier;
			uint32_t Flags;
		};
		static const FRule Rules[] = {
			{"Abstract", CLASS_Abstract},
			{"DefaultConfig", CLASS_DefaultConfig},
			{"Config", CLASS_Config},
			{"Transient", CLASS_Transient},
			{"PerObjectConfig", CLASS_PerObjectConfig},
			{"EditInlineNew", CLASS_EditInlineNew},
			{"CollapseCategories", CLASS_CollapseCategories},
			{"Const", CLASS_Const},
			{"MinimalAPI", CLASS_MinimalAPI},
			{"DefaultToInstanced", CLASS_DefaultToInstanced},
			{"Hidden", CLASS_Hidden},
			{"Deprecated", CLASS_Deprecated},
			{"HideDropDown", CLASS_HideDropDown},
			{"GlobalUserConfig", CLASS_GlobalUserConfig},
			{"ProjectUserConfig", CLASS_ProjectUserConfig},
		};
		uint32_t Flags = 0;
		for (const FRule& Rule : Rules)
		{
			if (HasKey(Class.Specifiers, Rule.Specifier))
			{
				Flags |= Rule.Flags;
			}
		}
		return Flags;
	}

	std::string Hex64(uint64_t Value)
	{
		char Buffer[32];
		std::snprintf(Buffer, sizeof(Buffer), "0x%016llxull", static_cast<unsigned long long>(Value));
		return Buffer;
	}

	std::string Hex32(uint32_t Value)
	{
		char Buffer[16];
		std::snprintf(Buffer, sizeof(Buffer), "0x%08xu", Value);
		return Buffer;
	}
}
