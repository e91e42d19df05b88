// The DECLARE_DYNAMIC_[MULTICAST_]DELEGATE* macros and the AddDynamic family. Each declaration
// expands the body the header tool generated for its line (the wrapper that builds the parameter
// block), then the delegate class whose Broadcast or Execute calls that wrapper.
#pragma once

#include "UObject/ScriptDelegates.h"

struct FNotThreadSafeDelegateMode;

namespace UE::Delegates::Private
{
	/** "&UMyClass::OnThing" -> "OnThing". */
	COREUOBJECT_API FName GetTrimmedMemberFunctionName(const TCHAR* InMacroFunctionName);
}

#define STATIC_FUNCTION_FNAME(str) UE::Delegates::Private::GetTrimmedMemberFunctionName(str)

#ifndef FUNC_CONCAT
#define FUNC_CONCAT(...) __VA_ARGS__
#endif

#ifndef AddDynamic
#define AddDynamic(UserObject, FuncName) __Internal_AddDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#endif
#ifndef AddUniqueDynamic
#define AddUniqueDynamic(UserObject, FuncName) __Internal_AddUniqueDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#endif
#ifndef RemoveDynamic
#define RemoveDynamic(UserObject, FuncName) __Internal_RemoveDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#endif
#ifndef IsAlreadyBound
#define IsAlreadyBound(UserObject, FuncName) __Internal_IsAlreadyBound(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#endif
#ifndef BindDynamic
#define BindDynamic(UserObject, FuncName) __Internal_BindDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#endif

template<typename ThreadSafetyMode, typename RetValType, typename... ParamTypes>
class TBaseDynamicDelegate : public TScriptDelegate<FWeakObjectPtr>
{
public:
	TBaseDynamicDelegate() = default;
	explicit TBaseDynamicDelegate(const TScriptDelegate<FWeakObjectPtr>& InScriptDelegate)
		: TScriptDelegate<FWeakObjectPtr>(InScriptDelegate)
	{
	}

	template<class UserClass>
	struct TMethodPtrResolver
	{
		typedef RetValType (UserClass::*FMethodPtr)(ParamTypes...);
	};

	template<class UserClass>
	void __Internal_BindDynamic(UserClass* InUserObject, typename TMethodPtrResolver<UserClass>::FMethodPtr InMethodPtr, FName InFunctionName)
	{
		check(InUserObject != nullptr && InMethodPtr != nullptr);
		this->BindUFunction(InUserObject, InFunctionName);
	}
};

template<typename ThreadSafetyMode, typename RetValType, typename... ParamTypes>
class TBaseDynamicMulticastDelegate : public TMulticastScriptDelegate<FWeakObjectPtr>
{
public:
	typedef TBaseDynamicDelegate<ThreadSafetyMode, RetValType, ParamTypes...> FDelegate;

	TBaseDynamicMulticastDelegate() = default;
	explicit TBaseDynamicMulticastDelegate(const TMulticastScriptDelegate<FWeakObjectPtr>& InMulticastScriptDelegate)
		: TMulticastScriptDelegate<FWeakObjectPtr>(InMulticastScriptDelegate)
	{
	}

	template<class UserClass>
	struct TMethodPtrResolver
	{
		typedef RetValType (UserClass::*FMethodPtr)(ParamTypes...);
	};

	template<class UserClass>
	bool __Internal_IsAlreadyBound(UserClass* InUserObject, typename TMethodPtrResolver<UserClass>::FMethodPtr InMethodPtr, FName InFunctionName) const
	{
		check(InUserObject != nullptr && InMethodPtr != nullptr);
		return this->Contains(InUserObject, InFunctionName);
	}

	template<class UserClass>
	void __Internal_AddDynamic(UserClass* InUserObject, typename TMethodPtrResolver<UserClass>::FMethodPtr InMethodPtr, FName InFunctionName)
	{
		check(InUserObject != nullptr && InMethodPtr != nullptr);
		FDelegate NewDelegate;
		NewDelegate.BindUFunction(InUserObject, InFunctionName);
		this->Add(NewDelegate);
	}

	template<class UserClass>
	void __Internal_AddUniqueDynamic(UserClass* InUserObject, typename TMethodPtrResolver<UserClass>::FMethodPtr InMethodPtr, FName InFunctionName)
	{
		check(InUserObject != nullptr && InMethodPtr != nullptr);
		FDelegate NewDelegate;
		NewDelegate.BindUFunction(InUserObject, InFunctionName);
		this->AddUnique(NewDelegate);
	}

	template<class UserClass>
	void __Internal_RemoveDynamic(UserClass* InUserObject, typename TMethodPtrResolver<UserClass>::FMethodPtr InMethodPtr, FName InFunctionName)
	{
		check(InUserObject != nullptr && InMethodPtr != nullptr);
		this->Remove(InUserObject, InFunctionName);
	}
};

#define FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(TWeakPtr, DynamicMulticastDelegateName, ExecFunction, FuncParamList, FuncParamPassThru, ...) \
	class DynamicMulticastDelegateName : public TBaseDynamicMulticastDelegate<FNotThreadSafeDelegateMode, __VA_ARGS__> \
	{ \
	public: \
		DynamicMulticastDelegateName() \
		{ \
		} \
		explicit DynamicMulticastDelegateName(const TMulticastScriptDelegate<>& InMulticastScriptDelegate) \
			: TBaseDynamicMulticastDelegate<FNotThreadSafeDelegateMode, __VA_ARGS__>(InMulticastScriptDelegate) \
		{ \
		} \
		void Broadcast(FuncParamList) const \
		{ \
			ExecFunction(FuncParamPassThru); \
		} \
		static UFunction* StaticSignatureFunction() \
		{ \
			return Z_Construct_UDelegateFunction_##DynamicMulticastDelegateName##__DelegateSignature(); \
		} \
		static constexpr bool bIsMulticastDynamicDelegate = true; \
	};

#define FUNC_DECLARE_DYNAMIC_DELEGATE(TWeakPtr, DynamicDelegateName, ExecFunction, FuncParamList, FuncParamPassThru, RetValType, ...) \
	class DynamicDelegateName : public TBaseDynamicDelegate<FNotThreadSafeDelegateMode, RetValType, ##__VA_ARGS__> \
	{ \
	public: \
		DynamicDelegateName() \
		{ \
		} \
		explicit DynamicDelegateName(const TScriptDelegate<>& InScriptDelegate) \
			: TBaseDynamicDelegate<FNotThreadSafeDelegateMode, RetValType, ##__VA_ARGS__>(InScriptDelegate) \
		{ \
		} \
		RetValType Execute(FuncParamList) const \
		{ \
			return ExecFunction(FuncParamPassThru); \
		} \
		void ExecuteIfBound(FuncParamList) const \
		{ \
			if (this->IsBound()) \
			{ \
				ExecFunction(FuncParamPassThru); \
			} \
		} \
		static UFunction* StaticSignatureFunction() \
		{ \
			return Z_Construct_UDelegateFunction_##DynamicDelegateName##__DelegateSignature(); \
		} \
		static constexpr bool bIsSingleDynamicDelegate = true; \
	};

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(), FUNC_CONCAT(*this), void)

#define DECLARE_DYNAMIC_DELEGATE(DelegateName) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(), FUNC_CONCAT(*this), void)

#define DECLARE_DYNAMIC_DELEGATE_RetVal(ReturnValueType, DelegateName) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(), FUNC_CONCAT(*this), ReturnValueType)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1), FUNC_CONCAT(*this, InParam1), void, Param1Type)

#define DECLARE_DYNAMIC_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1), FUNC_CONCAT(*this, InParam1), void, Param1Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(ReturnValueType, DelegateName, Param1Type, Param1Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1), FUNC_CONCAT(*this, InParam1), ReturnValueType, Param1Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2), FUNC_CONCAT(*this, InParam1, InParam2), void, Param1Type, Param2Type)

#define DECLARE_DYNAMIC_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2), FUNC_CONCAT(*this, InParam1, InParam2), void, Param1Type, Param2Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2), FUNC_CONCAT(*this, InParam1, InParam2), ReturnValueType, Param1Type, Param2Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3), FUNC_CONCAT(*this, InParam1, InParam2, InParam3), void, Param1Type, Param2Type, Param3Type)

#define DECLARE_DYNAMIC_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3), FUNC_CONCAT(*this, InParam1, InParam2, InParam3), void, Param1Type, Param2Type, Param3Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_ThreeParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3), FUNC_CONCAT(*this, InParam1, InParam2, InParam3), ReturnValueType, Param1Type, Param2Type, Param3Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4), void, Param1Type, Param2Type, Param3Type, Param4Type)

#define DECLARE_DYNAMIC_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4), void, Param1Type, Param2Type, Param3Type, Param4Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_FourParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4), ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_DYNAMIC_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_FiveParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5), ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)

#define DECLARE_DYNAMIC_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_SixParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6), ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)

#define DECLARE_DYNAMIC_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_SevenParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7), ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7, Param8Type InParam8), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7, InParam8), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)

#define DECLARE_DYNAMIC_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7, Param8Type InParam8), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7, InParam8), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_EightParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7, Param8Type InParam8), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7, InParam8), ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)

#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_MULTICAST_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7, Param8Type InParam8, Param9Type InParam9), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7, InParam8, InParam9), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)

#define DECLARE_DYNAMIC_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7, Param8Type InParam8, Param9Type InParam9), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7, InParam8, InParam9), void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)

#define DECLARE_DYNAMIC_DELEGATE_RetVal_NineParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) \
	BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _DELEGATE) \
	FUNC_DECLARE_DYNAMIC_DELEGATE(FWeakObjectPtr, DelegateName, DelegateName##_DelegateWrapper, FUNC_CONCAT(Param1Type InParam1, Param2Type InParam2, Param3Type InParam3, Param4Type InParam4, Param5Type InParam5, Param6Type InParam6, Param7Type InParam7, Param8Type InParam8, Param9Type InParam9), FUNC_CONCAT(*this, InParam1, InParam2, InParam3, InParam4, InParam5, InParam6, InParam7, InParam8, InParam9), ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)
