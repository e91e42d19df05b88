#pragma once

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FQuorvelDepositAccepted, FName, ItemId, int32);
