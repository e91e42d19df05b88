// Reference-counted pointers with the engine's interface. Counting is always thread-safe; the mode
// parameter is kept so that code naming it compiles and keeps distinct types apart.
#pragma once

#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointerFwd.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <cstddef>
#include <memory>
#include <type_traits>

namespace SharedPointerInternals
{
	// What MakeShareable returns: a raw pointer waiting to be adopted by a shared pointer or reference.
	template <class ObjectType>
	struct TRawPtrProxy
	{
		explicit TRawPtrProxy(ObjectType* InObject)
			: Object(InObject)
		{
		}

		ObjectType* Object;
	};

	template <class ObjectType, class DeleterType>
	struct TRawPtrProxyWithDeleter
	{
		TRawPtrProxyWithDeleter(ObjectType* InObject, DeleterType&& InDeleter)
			: Object(InObject)
			, Deleter(MoveTemp(InDeleter))
		{
		}

		ObjectType* Object;
		DeleterType Deleter;
	};

	// The one place allowed to reach the standard pointers inside the engine types.
	struct FAccess
	{
		template <class PointerType>
		static auto& Get(PointerType& Pointer)
		{
			return Pointer.Pointer;
		}

		template <class PointerType>
		static const auto& Get(const PointerType& Pointer)
		{
			return Pointer.Pointer;
		}

		template <class PointerType, class SourceType>
		static PointerType Make(SourceType&& Source)
		{
			return PointerType(Forward<SourceType>(Source), 0);
		}
	};

	template <class From, class To>
	inline constexpr bool TPointerIsConvertible = std::is_convertible_v<From*, To*>;
}

template <class ObjectType, ESPMode Mode>
class TSharedRef
{
	friend struct SharedPointerInternals::FAccess;

public:
	using ElementType = ObjectType;

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	explicit TSharedRef(OtherType* InObject)
		: Pointer(InObject)
	{
		checkf(InObject != nullptr, "TSharedRef cannot be constructed from a null pointer");
	}

	template <class OtherType, class DeleterType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedRef(OtherType* InObject, DeleterType&& InDeleter)
		: Pointer(InObject, Forward<DeleterType>(InDeleter))
	{
		checkf(InObject != nullptr, "TSharedRef cannot be constructed from a null pointer");
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedRef(const SharedPointerInternals::TRawPtrProxy<OtherType>& InRawPtrProxy)
		: Pointer(InRawPtrProxy.Object)
	{
		checkf(InRawPtrProxy.Object != nullptr, "TSharedRef cannot be constructed from a null pointer");
	}

	template <class OtherType, class DeleterType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedRef(SharedPointerInternals::TRawPtrProxyWithDeleter<OtherType, DeleterType>&& InRawPtrProxy)
		: Pointer(InRawPtrProxy.Object, MoveTemp(InRawPtrProxy.Deleter))
	{
		checkf(InRawPtrProxy.Object != nullptr, "TSharedRef cannot be constructed from a null pointer");
	}

	TSharedRef(const TSharedRef&) = default;
	TSharedRef& operator=(const TSharedRef&) = default;

	// Moving copies: a reference is never left null.
	TSharedRef(TSharedRef&& Other)
		: Pointer(Other.Pointer)
	{
	}

	TSharedRef& operator=(TSharedRef&& Other)
	{
		Pointer = Other.Pointer;
		return *this;
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other)
		: Pointer(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	// Shares ownership with Other but points at InObject, typically a member of Other's object.
	template <class OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other, ObjectType* InObject)
		: Pointer(SharedPointerInternals::FAccess::Get(Other), InObject)
	{
		check(InObject != nullptr);
	}

	FORCEINLINE ObjectType& Get() const
	{
		return *Pointer;
	}

	FORCEINLINE ObjectType& operator*() const
	{
		return *Pointer;
	}

	FORCEINLINE ObjectType* operator->() const
	{
		return Pointer.get();
	}

	// Always true; kept so generic code can treat references and pointers alike.
	FORCEINLINE bool IsValid() const
	{
		return true;
	}

	FORCEINLINE int32 GetSharedReferenceCount() const
	{
		return static_cast<int32>(Pointer.use_count());
	}

	FORCEINLINE bool IsUnique() const
	{
		return Pointer.use_count() == 1;
	}

	TSharedPtr<ObjectType, Mode> ToSharedPtr() const
	{
		return SharedPointerInternals::FAccess::Make<TSharedPtr<ObjectType, Mode>>(Pointer);
	}

	TWeakPtr<ObjectType, Mode> ToWeakPtr() const
	{
		return TWeakPtr<ObjectType, Mode>(*this);
	}

private:
	TSharedRef(std::shared_ptr<ObjectType> InPointer, int)
		: Pointer(MoveTemp(InPointer))
	{
		check(Pointer != nullptr);
	}

	std::shared_ptr<ObjectType> Pointer;
};

template <class ObjectType, ESPMode Mode>
class TSharedPtr
{
	friend struct SharedPointerInternals::FAccess;

public:
	using ElementType = ObjectType;

	TSharedPtr() = default;

	TSharedPtr(std::nullptr_t)
	{
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	explicit TSharedPtr(OtherType* InObject)
		: Pointer(InObject)
	{
	}

	template <class OtherType, class DeleterType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedPtr(OtherType* InObject, DeleterType&& InDeleter)
		: Pointer(InObject, Forward<DeleterType>(InDeleter))
	{
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedPtr(const SharedPointerInternals::TRawPtrProxy<OtherType>& InRawPtrProxy)
		: Pointer(InRawPtrProxy.Object)
	{
	}

	template <class OtherType, class DeleterType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedPtr(SharedPointerInternals::TRawPtrProxyWithDeleter<OtherType, DeleterType>&& InRawPtrProxy)
		: Pointer(InRawPtrProxy.Object, MoveTemp(InRawPtrProxy.Deleter))
	{
	}

	TSharedPtr(const TSharedPtr&) = default;
	TSharedPtr(TSharedPtr&&) = default;
	TSharedPtr& operator=(const TSharedPtr&) = default;
	TSharedPtr& operator=(TSharedPtr&&) = default;

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Pointer(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedPtr(TSharedPtr<OtherType, Mode>&& Other)
		: Pointer(MoveTemp(SharedPointerInternals::FAccess::Get(Other)))
	{
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other)
		: Pointer(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	template <class OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other, ObjectType* InObject)
		: Pointer(SharedPointerInternals::FAccess::Get(Other), InObject)
	{
	}

	template <class OtherType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other, ObjectType* InObject)
		: Pointer(SharedPointerInternals::FAccess::Get(Other), InObject)
	{
	}

	TSharedPtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TSharedPtr& operator=(const SharedPointerInternals::TRawPtrProxy<OtherType>& InRawPtrProxy)
	{
		Pointer.reset(InRawPtrProxy.Object);
		return *this;
	}

	FORCEINLINE ObjectType* Get() const
	{
		return Pointer.get();
	}

	FORCEINLINE explicit operator bool() const
	{
		return Pointer != nullptr;
	}

	FORCEINLINE bool IsValid() const
	{
		return Pointer != nullptr;
	}

	FORCEINLINE ObjectType& operator*() const
	{
		check(IsValid());
		return *Pointer;
	}

	FORCEINLINE ObjectType* operator->() const
	{
		check(IsValid());
		return Pointer.get();
	}

	FORCEINLINE void Reset()
	{
		Pointer.reset();
	}

	FORCEINLINE int32 GetSharedReferenceCount() const
	{
		return static_cast<int32>(Pointer.use_count());
	}

	FORCEINLINE bool IsUnique() const
	{
		return Pointer.use_count() == 1;
	}

	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		check(IsValid());
		return SharedPointerInternals::FAccess::Make<TSharedRef<ObjectType, Mode>>(Pointer);
	}

	TWeakPtr<ObjectType, Mode> ToWeakPtr() const
	{
		return TWeakPtr<ObjectType, Mode>(*this);
	}

private:
	TSharedPtr(std::shared_ptr<ObjectType> InPointer, int)
		: Pointer(MoveTemp(InPointer))
	{
	}

	std::shared_ptr<ObjectType> Pointer;
};

template <class ObjectType, ESPMode Mode>
class TWeakPtr
{
	friend struct SharedPointerInternals::FAccess;

public:
	using ElementType = ObjectType;

	TWeakPtr() = default;

	TWeakPtr(std::nullptr_t)
	{
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Shared)
		: Pointer(SharedPointerInternals::FAccess::Get(Shared))
		, Object(&Shared.Get())
	{
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Shared)
		: Pointer(SharedPointerInternals::FAccess::Get(Shared))
		, Object(Shared.Get())
	{
	}

	template <class OtherType>
		requires SharedPointerInternals::TPointerIsConvertible<OtherType, ObjectType>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other)
		: Pointer(SharedPointerInternals::FAccess::Get(Other))
		, Object(Other.Object)
	{
	}

	TWeakPtr(const TWeakPtr&) = default;
	TWeakPtr& operator=(const TWeakPtr&) = default;

	TWeakPtr(TWeakPtr&& Other)
		: Pointer(MoveTemp(Other.Pointer))
		, Object(Other.Object)
	{
		Other.Object = nullptr;
	}

	TWeakPtr& operator=(TWeakPtr&& Other)
	{
		if (this != &Other)
		{
			Pointer = MoveTemp(Other.Pointer);
			Object = Other.Object;
			Other.Object = nullptr;
		}
		return *this;
	}

	TWeakPtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	TSharedPtr<ObjectType, Mode> Pin() const
	{
		return SharedPointerInternals::FAccess::Make<TSharedPtr<ObjectType, Mode>>(Pointer.lock());
	}

	FORCEINLINE bool IsValid() const
	{
		return Object != nullptr && !Pointer.expired();
	}

	FORCEINLINE void Reset()
	{
		Pointer.reset();
		Object = nullptr;
	}

	FORCEINLINE bool HasSameObject(const void* InOtherPtr) const
	{
		return Pin().Get() == InOtherPtr;
	}

	// Hashes the address it was made from, so the hash stays put after the object dies.
	FORCEINLINE friend uint32 GetTypeHash(const TWeakPtr& WeakPtr)
	{
		return GetTypeHash(static_cast<const void*>(WeakPtr.Object));
	}

private:
	template <class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

	std::weak_ptr<ObjectType> Pointer;
	ObjectType* Object = nullptr;
};

// Lets an object hand out shared references to itself once a shared pointer owns it.
template <class ObjectType, ESPMode Mode>
class TSharedFromThis : public std::enable_shared_from_this<ObjectType>
{
public:
	TSharedRef<ObjectType, Mode> AsShared()
	{
		std::shared_ptr<ObjectType> Shared = this->weak_from_this().lock();
		checkf(Shared != nullptr, "AsShared called on an object no shared pointer owns (or from its constructor)");
		return SharedPointerInternals::FAccess::Make<TSharedRef<ObjectType, Mode>>(MoveTemp(Shared));
	}

	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		std::shared_ptr<const ObjectType> Shared = this->weak_from_this().lock();
		checkf(Shared != nullptr, "AsShared called on an object no shared pointer owns (or from its constructor)");
		return SharedPointerInternals::FAccess::Make<TSharedRef<const ObjectType, Mode>>(MoveTemp(Shared));
	}

	TWeakPtr<ObjectType, Mode> AsWeak()
	{
		return TWeakPtr<ObjectType, Mode>(SharedPointerInternals::FAccess::Make<TSharedPtr<ObjectType, Mode>>(this->weak_from_this().lock()));
	}

	TWeakPtr<const ObjectType, Mode> AsWeak() const
	{
		return TWeakPtr<const ObjectType, Mode>(SharedPointerInternals::FAccess::Make<TSharedPtr<const ObjectType, Mode>>(
			std::shared_ptr<const ObjectType>(this->weak_from_this().lock())));
	}

	FORCEINLINE bool DoesSharedInstanceExist() const
	{
		return !this->weak_from_this().expired();
	}

protected:
	TSharedFromThis() = default;
	TSharedFromThis(const TSharedFromThis&) = default;
	TSharedFromThis& operator=(const TSharedFromThis&)
	{
		return *this;
	}
	~TSharedFromThis() = default;

	template <class OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return StaticCastSharedRef<OtherType>(ThisPtr->AsShared());
	}

	template <class OtherType>
	static TSharedRef<const OtherType, Mode> SharedThis(const OtherType* ThisPtr)
	{
		return StaticCastSharedRef<const OtherType>(ThisPtr->AsShared());
	}
};

// Creation

template <typename InObjectType, ESPMode InMode = ESPMode::ThreadSafe, typename... InArgTypes>
[[nodiscard]] TSharedRef<InObjectType, InMode> MakeShared(InArgTypes&&... Args)
{
	return SharedPointerInternals::FAccess::Make<TSharedRef<InObjectType, InMode>>(
		std::make_shared<InObjectType>(Forward<InArgTypes>(Args)...));
}

template <class ObjectType>
[[nodiscard]] SharedPointerInternals::TRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return SharedPointerInternals::TRawPtrProxy<ObjectType>(InObject);
}

template <class ObjectType, class DeleterType>
[[nodiscard]] SharedPointerInternals::TRawPtrProxyWithDeleter<ObjectType, std::decay_t<DeleterType>> MakeShareable(ObjectType* InObject, DeleterType&& InDeleter)
{
	return SharedPointerInternals::TRawPtrProxyWithDeleter<ObjectType, std::decay_t<DeleterType>>(InObject, Forward<DeleterType>(InDeleter));
}

// Casts

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedRef<CastToType, Mode> StaticCastSharedRef(const TSharedRef<CastFromType, Mode>& InSharedRef)
{
	return SharedPointerInternals::FAccess::Make<TSharedRef<CastToType, Mode>>(
		std::static_pointer_cast<CastToType>(SharedPointerInternals::FAccess::Get(InSharedRef)));
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedPtr<CastToType, Mode> StaticCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InSharedPtr)
{
	return SharedPointerInternals::FAccess::Make<TSharedPtr<CastToType, Mode>>(
		std::static_pointer_cast<CastToType>(SharedPointerInternals::FAccess::Get(InSharedPtr)));
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TWeakPtr<CastToType, Mode> StaticCastWeakPtr(const TWeakPtr<CastFromType, Mode>& InWeakPtr)
{
	return TWeakPtr<CastToType, Mode>(StaticCastSharedPtr<CastToType>(InWeakPtr.Pin()));
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedRef<CastToType, Mode> ConstCastSharedRef(const TSharedRef<CastFromType, Mode>& InSharedRef)
{
	return SharedPointerInternals::FAccess::Make<TSharedRef<CastToType, Mode>>(
		std::const_pointer_cast<CastToType>(SharedPointerInternals::FAccess::Get(InSharedRef)));
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedPtr<CastToType, Mode> ConstCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InSharedPtr)
{
	return SharedPointerInternals::FAccess::Make<TSharedPtr<CastToType, Mode>>(
		std::const_pointer_cast<CastToType>(SharedPointerInternals::FAccess::Get(InSharedPtr)));
}

// Comparisons: by the object pointed at.

template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
FORCEINLINE bool operator==(const TSharedRef<ObjectTypeA, Mode>& A, const TSharedRef<ObjectTypeB, Mode>& B)
{
	return &A.Get() == &B.Get();
}

template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
FORCEINLINE bool operator==(const TSharedPtr<ObjectTypeA, Mode>& A, const TSharedPtr<ObjectTypeB, Mode>& B)
{
	return A.Get() == B.Get();
}

template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
FORCEINLINE bool operator==(const TSharedPtr<ObjectTypeA, Mode>& A, const TSharedRef<ObjectTypeB, Mode>& B)
{
	return A.Get() == &B.Get();
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE bool operator==(const TSharedPtr<ObjectType, Mode>& A, std::nullptr_t)
{
	return !A.IsValid();
}

template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
FORCEINLINE bool operator==(const TWeakPtr<ObjectTypeA, Mode>& A, const TWeakPtr<ObjectTypeB, Mode>& B)
{
	return A.Pin().Get() == B.Pin().Get();
}

template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
FORCEINLINE bool operator==(const TWeakPtr<ObjectTypeA, Mode>& A, const TSharedPtr<ObjectTypeB, Mode>& B)
{
	return A.Pin().Get() == B.Get();
}

template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
FORCEINLINE bool operator==(const TWeakPtr<ObjectTypeA, Mode>& A, const TSharedRef<ObjectTypeB, Mode>& B)
{
	return A.Pin().Get() == &B.Get();
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE bool operator==(const TWeakPtr<ObjectType, Mode>& A, std::nullptr_t)
{
	return !A.IsValid();
}

// Hashes

template <class ObjectType, ESPMode Mode>
FORCEINLINE uint32 GetTypeHash(const TSharedRef<ObjectType, Mode>& InSharedRef)
{
	return GetTypeHash(static_cast<const void*>(&InSharedRef.Get()));
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE uint32 GetTypeHash(const TSharedPtr<ObjectType, Mode>& InSharedPtr)
{
	return GetTypeHash(static_cast<const void*>(InSharedPtr.Get()));
}
