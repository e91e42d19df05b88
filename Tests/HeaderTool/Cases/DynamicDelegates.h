#pragma once

#include "DynamicDelegates.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FNoParams);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FQuorvelStashLoaded, int32, StackCount);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FQuorvelStashFailed, const FQuorvelError&, Error);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FTwo, FName, ItemId, bool, bSuccess);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(FQuorvelDepositAccepted, FName, ItemId, int32, Quantity, int32, SourceSlot);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(FFour, int32, A, int32, B, int32, C, int32, D);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(FFive, int32, A, int32, B, int32, C, int32, D, int32, E);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(FSix, int32, A, int32, B, int32, C, int32, D, int32, E, int32, F);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_SevenParams(FSeven, int32, A, int32, B, int32, C, int32, D, int32, E, int32, F, int32, G);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_EightParams(FEight, int32, A, int32, B, int32, C, int32, D, int32, E, int32, F, int32, G, int32, H);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_NineParams(FNine, int32, A, int32, B, int32, C, int32, D, int32, E, int32, F, int32, G, int32, H, int32, I);

DECLARE_DYNAMIC_DELEGATE(FSingle);
DECLARE_DYNAMIC_DELEGATE_OneParam(FSingleOne, const TArray<FQuorvelItemInstance>&, Items);

/** Asks the game whether a stack may move. */
DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(bool, FCanMove, const FQuorvelItemInstance&, Instance, UQuorvelStashPanel*, Target);
DECLARE_DYNAMIC_DELEGATE_RetVal(int32, FCount);

UDELEGATE(BlueprintAuthorityOnly, meta = (DisplayName = "Stash Ready"))
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FWithUdelegate, int32, Count);
