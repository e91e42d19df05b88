// Reflection markup, object/class/property flags and the class declaration macros.
#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

class UObject;
class UClass;
class UStruct;
class UScriptStruct;
class UFunction;
class UEnum;
class UPackage;
class FObjectInitializer;
class FReferenceCollector;
struct FFrame;

// Markup read by the header tool; the compiler sees nothing of it.
#define UCLASS(...)
#define UINTERFACE(...)
#define USTRUCT(...)
#define UENUM(...)
#define UPROPERTY(...)
#define UFUNCTION(...)
#define UPARAM(...)
#define UMETA(...)
#define UDELEGATE(...)

#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)
#define GENERATED_USTRUCT_BODY(...) GENERATED_BODY()
#define GENERATED_UCLASS_BODY(...) GENERATED_BODY()

#define RELAY_CONSTRUCTOR(TClass, TSuperClass) TClass(const FObjectInitializer& ObjectInitializer) : TSuperClass(ObjectInitializer) {}

enum EObjectFlags : uint32
{
	RF_NoFlags = 0x00000000,
	RF_Public = 0x00000001,
	RF_Standalone = 0x00000002,
	RF_MarkAsNative = 0x00000004,
	RF_Transactional = 0x00000008,
	RF_ClassDefaultObject = 0x00000010,
	RF_ArchetypeObject = 0x00000020,
	RF_Transient = 0x00000040,
	RF_MarkAsRootSet = 0x00000080,
	RF_TagGarbageTemp = 0x00000100,
	RF_NeedInitialization = 0x00000200,
	RF_NeedLoad = 0x00000400,
	RF_KeepForCooker = 0x00000800,
	RF_NeedPostLoad = 0x00001000,
	RF_NeedPostLoadSubobjects = 0x00002000,
	RF_NewerVersionExists = 0x00004000,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	RF_BeingRegenerated = 0x00020000,
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	RF_TextExportTransient = 0x00100000,
	RF_LoadCompleted = 0x00200000,
	RF_InheritableComponentTemplate = 0x00400000,
	RF_DuplicateTransient = 0x00800000,
	RF_StrongRefOnFrame = 0x01000000,
	RF_NonPIEDuplicateTransient = 0x02000000,
	RF_WillBeLoaded = 0x08000000,
	RF_HasExternalPackage = 0x10000000,
	RF_AllFlags = 0xffffffff,
};
ENUM_CLASS_FLAGS(EObjectFlags);

#define RF_AllocatedInSharedPage RF_NoFlags

enum class EInternalObjectFlags : int32
{
	None = 0,
	Garbage = 1 << 21,
	Native = 1 << 25,
	Async = 1 << 26,
	AsyncLoading = 1 << 27,
	Unreachable = 1 << 28,
	RootSet = 1 << 30,
};
ENUM_CLASS_FLAGS(EInternalObjectFlags);

enum EClassFlags : uint32
{
	CLASS_None = 0x00000000u,
	CLASS_Abstract = 0x00000001u,
	CLASS_DefaultConfig = 0x00000002u,
	CLASS_Config = 0x00000004u,
	CLASS_Transient = 0x00000008u,
	CLASS_Optional = 0x00000010u,
	CLASS_MatchedSerializers = 0x00000020u,
	CLASS_ProjectUserConfig = 0x00000040u,
	CLASS_Native = 0x00000080u,
	CLASS_NoExport = 0x00000100u,
	CLASS_NotPlaceable = 0x00000200u,
	CLASS_PerObjectConfig = 0x00000400u,
	CLASS_ReplicationDataIsSetUp = 0x00000800u,
	CLASS_EditInlineNew = 0x00001000u,
	CLASS_CollapseCategories = 0x00002000u,
	CLASS_Interface = 0x00004000u,
	CLASS_CustomConstructor = 0x00008000u,
	CLASS_Const = 0x00010000u,
	CLASS_NeedsDeferredDependencyLoading = 0x00020000u,
	CLASS_CompiledFromBlueprint = 0x00040000u,
	CLASS_MinimalAPI = 0x00080000u,
	CLASS_RequiredAPI = 0x00100000u,
	CLASS_DefaultToInstanced = 0x00200000u,
	CLASS_TokenStreamAssembled = 0x00400000u,
	CLASS_HasInstancedReference = 0x00800000u,
	CLASS_Hidden = 0x01000000u,
	CLASS_Deprecated = 0x02000000u,
	CLASS_HideDropDown = 0x04000000u,
	CLASS_GlobalUserConfig = 0x08000000u,
	CLASS_Intrinsic = 0x10000000u,
	CLASS_Constructed = 0x20000000u,
	CLASS_ConfigDoNotCheckDefaults = 0x40000000u,
	CLASS_NewerVersionExists = 0x80000000u,
};
ENUM_CLASS_FLAGS(EClassFlags);

enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0x0000000000000000ull,
};
ENUM_CLASS_FLAGS(EClassCastFlags);

enum EPropertyFlags : uint64
{
	CPF_None = 0,
	CPF_Edit = 0x0000000000000001ull,
	CPF_ConstParm = 0x0000000000000002ull,
	CPF_BlueprintVisible = 0x0000000000000004ull,
	CPF_ExportObject = 0x0000000000000008ull,
	CPF_BlueprintReadOnly = 0x0000000000000010ull,
	CPF_Net = 0x0000000000000020ull,
	CPF_EditFixedSize = 0x0000000000000040ull,
	CPF_Parm = 0x0000000000000080ull,
	CPF_OutParm = 0x0000000000000100ull,
	CPF_ZeroConstructor = 0x0000000000000200ull,
	CPF_ReturnParm = 0x0000000000000400ull,
	CPF_DisableEditOnTemplate = 0x0000000000000800ull,
	CPF_NonNullable = 0x0000000000001000ull,
	CPF_Transient = 0x0000000000002000ull,
	CPF_Config = 0x0000000000004000ull,
	CPF_RequiredParm = 0x0000000000008000ull,
	CPF_DisableEditOnInstance = 0x0000000000010000ull,
	CPF_EditConst = 0x0000000000020000ull,
	CPF_GlobalConfig = 0x0000000000040000ull,
	CPF_InstancedReference = 0x0000000000080000ull,
	CPF_DuplicateTransient = 0x0000000000200000ull,
	CPF_SaveGame = 0x0000000001000000ull,
	CPF_NoClear = 0x0000000002000000ull,
	CPF_ReferenceParm = 0x0000000008000000ull,
	CPF_BlueprintAssignable = 0x0000000010000000ull,
	CPF_Deprecated = 0x0000000020000000ull,
	CPF_IsPlainOldData = 0x0000000040000000ull,
	CPF_RepSkip = 0x0000000080000000ull,
	CPF_RepNotify = 0x0000000100000000ull,
	CPF_Interp = 0x0000000200000000ull,
	CPF_NonTransactional = 0x0000000400000000ull,
	CPF_EditorOnly = 0x0000000800000000ull,
	CPF_NoDestructor = 0x0000001000000000ull,
	CPF_AutoWeak = 0x0000004000000000ull,
	CPF_ContainsInstancedReference = 0x0000008000000000ull,
	CPF_AssetRegistrySearchable = 0x0000010000000000ull,
	CPF_SimpleDisplay = 0x0000020000000000ull,
	CPF_AdvancedDisplay = 0x0000040000000000ull,
	CPF_Protected = 0x0000080000000000ull,
	CPF_BlueprintCallable = 0x0000100000000000ull,
	CPF_BlueprintAuthorityOnly = 0x0000200000000000ull,
	CPF_TextExportTransient = 0x0000400000000000ull,
	CPF_NonPIEDuplicateTransient = 0x0000800000000000ull,
	CPF_ExposeOnSpawn = 0x0001000000000000ull,
	CPF_PersistentInstance = 0x0002000000000000ull,
	CPF_UObjectWrapper = 0x0004000000000000ull,
	CPF_HasGetValueTypeHash = 0x0008000000000000ull,
	CPF_NativeAccessSpecifierPublic = 0x0010000000000000ull,
	CPF_NativeAccessSpecifierProtected = 0x0020000000000000ull,
	CPF_NativeAccessSpecifierPrivate = 0x0040000000000000ull,
	CPF_SkipSerialization = 0x0080000000000000ull,
	CPF_TObjectPtr = 0x0100000000000000ull,
	CPF_TObjectPtrWrapper = CPF_UObjectWrapper | CPF_TObjectPtr,
	CPF_ParmFlags = CPF_Parm | CPF_OutParm | CPF_ReturnParm | CPF_RequiredParm | CPF_ReferenceParm | CPF_ConstParm,
	CPF_NativeAccessSpecifiers = CPF_NativeAccessSpecifierPublic | CPF_NativeAccessSpecifierProtected | CPF_NativeAccessSpecifierPrivate,
	CPF_AllFlags = 0xFFFFFFFFFFFFFFFFull,
};
ENUM_CLASS_FLAGS(EPropertyFlags);

enum EStructFlags : uint32
{
	STRUCT_NoFlags = 0x00000000,
	STRUCT_Native = 0x00000001,
	STRUCT_IdenticalNative = 0x00000002,
	STRUCT_HasInstancedReference = 0x00000004,
	STRUCT_NoExport = 0x00000008,
	STRUCT_Atomic = 0x00000010,
	STRUCT_Immutable = 0x00000020,
	STRUCT_AddStructReferencedObjects = 0x00000040,
	STRUCT_RequiredAPI = 0x00000200,
	STRUCT_NetSerializeNative = 0x00000400,
	STRUCT_ImportTextItemNative = 0x00010000,
	STRUCT_ExportTextItemNative = 0x00040000,
	STRUCT_ZeroConstructor = 0x00001000,
	STRUCT_NoDestructor = 0x00004000,
	STRUCT_CopyNative = 0x00008000,
	STRUCT_IsPlainOldData = 0x00002000,
};
ENUM_CLASS_FLAGS(EStructFlags);

enum EEnumFlags : uint8
{
	EEnumFlags_None = 0,
};

enum EPackageFlags : uint32
{
	PKG_None = 0x00000000,
	PKG_NewlyCreated = 0x00000001,
	PKG_ClientOptional = 0x00000002,
	PKG_CompiledIn = 0x00000010,
	PKG_ContainsScript = 0x00200000,
	PKG_RuntimeGenerated = 0x00008000,
	PKG_TransientFlags = PKG_NewlyCreated,
};
ENUM_CLASS_FLAGS(EPackageFlags);

enum class EStaticConstructor
{
	EC_StaticConstructor
};

enum EInternal
{
	EC_InternalUseOnlyConstructor
};

// Native function pointer: what an exec thunk compiles to.
#define RESULT_PARAM Z_Param__Result
#define RESULT_DECL void*const RESULT_PARAM
typedef void (*FNativeFuncPtr)(UObject* Context, FFrame& TheStack, RESULT_DECL);

#define DECLARE_FUNCTION(func) static void func(UObject* Context, FFrame& Stack, RESULT_DECL)
#define DEFINE_FUNCTION(func) void func(UObject* Context, FFrame& Stack, RESULT_DECL)

// The constructor every class registers; it runs the C++ constructor in memory NewObject allocated.
typedef void (*FClassConstructorType)(const FObjectInitializer&);
typedef void (*FClassAddReferencedObjectsType)(UObject*, FReferenceCollector&);
typedef UClass* (*FStaticClassFn)();

/** Classes whose constructor takes the FObjectInitializer; the others are default-constructed. */
template<class T>
concept CHasObjectInitializerConstructor = requires(const FObjectInitializer& X) { ::new ((void*)nullptr) T(X); };

template<class T>
void InternalConstructor(const FObjectInitializer& X)
{
	T::__DefaultConstructor(X);
}

/** Declares the members every reflected class has: Super, ThisClass, StaticClass and the constructor hook. */
#define DECLARE_CLASS(TClass, TSuperClass, TStaticFlags, TStaticCastFlags, TPackage, TRequiredAPI) \
private: \
	TClass& operator=(TClass&&); \
	TClass& operator=(const TClass&); \
	TRequiredAPI static UClass* GetPrivateStaticClass(); \
public: \
	static constexpr EClassFlags StaticClassFlags = EClassFlags(TStaticFlags); \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	inline static UClass* StaticClass() \
	{ \
		return GetPrivateStaticClass(); \
	} \
	inline static const TCHAR* StaticPackage() \
	{ \
		return TPackage; \
	} \
	inline static EClassCastFlags StaticClassCastFlags() \
	{ \
		return TStaticCastFlags; \
	} \
	inline void* operator new(const size_t InSize, EInternal InMem) = delete; \
	inline void* operator new(const size_t InSize, EInternal* InMem) \
	{ \
		return (void*)InMem; \
	} \
	inline void operator delete(void* InMem) \
	{ \
	} \
	inline void operator delete(void* InMem, EInternal*) \
	{ \
	} \
	template<class TThis = TClass> \
	static void __DefaultConstructor(const FObjectInitializer& X) \
	{ \
		if constexpr (CHasObjectInitializerConstructor<TThis>) \
		{ \
			new ((EInternal*)X.GetObj()) TThis(X); \
		} \
		else \
		{ \
			new ((EInternal*)X.GetObj()) TThis(); \
		} \
	}

#define DECLARE_WITHIN(TWithinClass) \
	typedef class TWithinClass WithinClass; \
	TWithinClass* GetOuter##TWithinClass() const { return (TWithinClass*)GetOuter(); }

#define DECLARE_CASTED_CLASS_INTRINSIC_WITH_API(TClass, TSuperClass, TStaticFlags, TPackage, TStaticCastFlags, TRequiredAPI) \
	DECLARE_CLASS(TClass, TSuperClass, TStaticFlags | CLASS_Intrinsic, TStaticCastFlags, TPackage, TRequiredAPI) \
	static void StaticRegisterNatives##TClass() {}

#define DECLARE_CLASS_INTRINSIC(TClass, TSuperClass, TStaticFlags, TPackage) \
	DECLARE_CASTED_CLASS_INTRINSIC_WITH_API(TClass, TSuperClass, TStaticFlags, TPackage, CASTCLASS_None, COREUOBJECT_API)

#define NO_API

#define UE_REQUIRES(...) , std::enable_if_t<(__VA_ARGS__), int> = 0
