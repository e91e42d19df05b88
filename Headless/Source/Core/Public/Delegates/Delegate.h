// Single-cast delegates: at most one callable, copied along with the delegate. A binding to a shared
// or UObject instance holds it weakly and stops counting as bound once the instance is gone.
#pragma once

#include "CoreTypes.h"
#include "Templates/SharedPointer.h"

#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

class UObject;
struct FWeakObjectPtr;

struct FDefaultDelegateUserPolicy
{
};

namespace UE::Delegates::Private
{
	// Names a type only once a template is instantiated, so that BindUObject needs the weak object
	// pointer (CoreUObject) only where it is used.
	template <typename Type, typename>
	struct TDependentType
	{
		using FType = Type;
	};
}

template <typename DelegateSignature, typename UserPolicy = FDefaultDelegateUserPolicy>
class TDelegate;

template <typename InRetValType, typename... ParamTypes, typename UserPolicy>
class TDelegate<InRetValType(ParamTypes...), UserPolicy>
{
public:
	using RetValType = InRetValType;
	using TFuncType = InRetValType(ParamTypes...);

	TDelegate() = default;

	TDelegate(decltype(nullptr))
	{
	}

	template <typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes... Vars)
	{
		TDelegate Result;
		Result.BindLambda(std::forward<FunctorType>(InFunctor), Vars...);
		return Result;
	}

	template <typename FunctionType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateStatic(FunctionType InFunc, VarTypes... Vars)
	{
		TDelegate Result;
		Result.BindStatic(InFunc, Vars...);
		return Result;
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(UserClass* InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		TDelegate Result;
		Result.BindRaw(InUserObject, InFunc, Vars...);
		return Result;
	}

	template <typename UserPointerType, typename MethodType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const UserPointerType& InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		TDelegate Result;
		Result.BindSP(InUserObject, InFunc, Vars...);
		return Result;
	}

	template <typename UserPointerType, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSPLambda(const UserPointerType& InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		TDelegate Result;
		Result.BindSPLambda(InUserObject, std::forward<FunctorType>(InFunctor), Vars...);
		return Result;
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateUObject(UserClass* InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		TDelegate Result;
		Result.BindUObject(InUserObject, InFunc, Vars...);
		return Result;
	}

	template <typename UserClass, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		TDelegate Result;
		Result.BindWeakLambda(InUserObject, std::forward<FunctorType>(InFunctor), Vars...);
		return Result;
	}

	template <typename FunctorType, typename... VarTypes>
	void BindLambda(FunctorType&& InFunctor, VarTypes... Vars)
	{
		Bind(MakeCall(std::forward<FunctorType>(InFunctor), Vars...), nullptr);
	}

	template <typename FunctionType, typename... VarTypes>
	void BindStatic(FunctionType InFunc, VarTypes... Vars)
	{
		check(InFunc != nullptr);
		Bind(MakeCall(InFunc, Vars...), nullptr);
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
	void BindRaw(UserClass* InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		check(InUserObject != nullptr);
		Bind(MakeCall([InUserObject, InFunc](auto&&... Args) -> RetValType
		{
			return std::invoke(InFunc, InUserObject, std::forward<decltype(Args)>(Args)...);
		}, Vars...), nullptr);
	}

	template <typename UserClass, ESPMode Mode, typename MethodType, typename... VarTypes>
	void BindSP(const TSharedRef<UserClass, Mode>& InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		BindWeakCall(TWeakPtr<UserClass, Mode>(InUserObject), [InFunc](UserClass* Object, auto&&... Args) -> RetValType
		{
			return std::invoke(InFunc, Object, std::forward<decltype(Args)>(Args)...);
		}, Vars...);
	}

	template <typename UserClass, ESPMode Mode, typename MethodType, typename... VarTypes>
	void BindSP(const TSharedPtr<UserClass, Mode>& InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		check(InUserObject.IsValid());
		BindSP(InUserObject.ToSharedRef(), InFunc, Vars...);
	}

	/** Binds to an object that derives from TSharedFromThis, through its own shared reference. */
	template <typename UserClass, typename MethodType, typename... VarTypes>
	void BindSP(UserClass* InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		check(InUserObject != nullptr);
		BindSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Vars...);
	}

	template <typename UserClass, ESPMode Mode, typename FunctorType, typename... VarTypes>
	void BindSPLambda(const TSharedRef<UserClass, Mode>& InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		BindWeakCall(TWeakPtr<UserClass, Mode>(InUserObject), [Functor = std::forward<FunctorType>(InFunctor)](UserClass*, auto&&... Args) mutable -> RetValType
		{
			return Functor(std::forward<decltype(Args)>(Args)...);
		}, Vars...);
	}

	template <typename UserClass, ESPMode Mode, typename FunctorType, typename... VarTypes>
	void BindSPLambda(const TSharedPtr<UserClass, Mode>& InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		check(InUserObject.IsValid());
		BindSPLambda(InUserObject.ToSharedRef(), std::forward<FunctorType>(InFunctor), Vars...);
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
	void BindUObject(UserClass* InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		BindWeakObjectCall(InUserObject, [InUserObject, InFunc](auto&&... Args) -> RetValType
		{
			return std::invoke(InFunc, InUserObject, std::forward<decltype(Args)>(Args)...);
		}, Vars...);
	}

	template <typename UserClass, typename FunctorType, typename... VarTypes>
	void BindWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		BindWeakObjectCall(InUserObject, std::forward<FunctorType>(InFunctor), Vars...);
	}

	void Unbind()
	{
		Callable = nullptr;
		IsAlive = nullptr;
	}

	bool IsBound() const
	{
		return Callable && (!IsAlive || IsAlive());
	}

	RetValType Execute(ParamTypes... Params) const
	{
		checkf(IsBound(), "Executing an unbound delegate");
		return Callable(std::forward<ParamTypes>(Params)...);
	}

	bool ExecuteIfBound(ParamTypes... Params) const
		requires std::is_void_v<RetValType>
	{
		if (!IsBound())
		{
			return false;
		}
		Callable(std::forward<ParamTypes>(Params)...);
		return true;
	}

private:
	using FCallable = std::function<RetValType(ParamTypes...)>;

	// Appends the payload bound at bind time after the call's own arguments, as the engine does.
	template <typename FunctorType, typename... VarTypes>
	static FCallable MakeCall(FunctorType&& InFunctor, VarTypes... Vars)
	{
		return [Functor = std::forward<FunctorType>(InFunctor), Payload = std::make_tuple(Vars...)](ParamTypes... Params) mutable -> RetValType
		{
			return std::apply([&](auto&... Values) -> RetValType
			{
				return std::invoke(Functor, std::forward<ParamTypes>(Params)..., Values...);
			}, Payload);
		};
	}

	// The instance is pinned for the length of the call, so it cannot go away half-way through.
	template <typename UserClass, ESPMode Mode, typename FunctorType, typename... VarTypes>
	void BindWeakCall(TWeakPtr<UserClass, Mode> InWeakObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		Bind(MakeCall([WeakObject = InWeakObject, Functor = std::forward<FunctorType>(InFunctor)](auto&&... Args) mutable -> RetValType
		{
			TSharedPtr<UserClass, Mode> Pinned = WeakObject.Pin();
			if (!Pinned.IsValid())
			{
				return RetValType();
			}
			return Functor(Pinned.Get(), std::forward<decltype(Args)>(Args)...);
		}, Vars...), [InWeakObject]()
		{
			return InWeakObject.IsValid();
		});
	}

	template <typename UserClass, typename FunctorType, typename... VarTypes>
	void BindWeakObjectCall(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		using FWeakObject = typename UE::Delegates::Private::TDependentType<FWeakObjectPtr, UserClass>::FType;
		check(InUserObject != nullptr);
		const FWeakObject WeakObject(InUserObject);
		Bind(MakeCall([WeakObject, Functor = std::forward<FunctorType>(InFunctor)](auto&&... Args) mutable -> RetValType
		{
			if (!WeakObject.IsValid())
			{
				return RetValType();
			}
			return Functor(std::forward<decltype(Args)>(Args)...);
		}, Vars...), [WeakObject]()
		{
			return WeakObject.IsValid();
		});
	}

	void Bind(FCallable&& InCallable, std::function<bool()>&& InIsAlive)
	{
		Callable = std::move(InCallable);
		IsAlive = std::move(InIsAlive);
	}

	FCallable Callable;
	std::function<bool()> IsAlive;
};

#include "Delegates/DelegateCombinations.h"
