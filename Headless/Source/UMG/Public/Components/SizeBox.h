#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"

#include "SizeBox.generated.h"

class SBox;

/** Gives its content an explicit width and height, whatever the content asks for. */
UCLASS()
class UMG_API USizeBox : public UContentWidget
{
	GENERATED_BODY()

public:
	/** Whether WidthOverride applies. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Child Layout")
	bool bOverride_WidthOverride = false;

	/** Whether HeightOverride applies. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Child Layout")
	bool bOverride_HeightOverride = false;

	/** When set, the width the box asks for, in place of its content's. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Child Layout", meta = (EditCondition = "bOverride_WidthOverride"))
	float WidthOverride = 0.0f;

	/** When set, the height the box asks for, in place of its content's. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Child Layout", meta = (EditCondition = "bOverride_HeightOverride"))
	float HeightOverride = 0.0f;

	float GetWidthOverride() const
	{
		return WidthOverride;
	}

	float GetHeightOverride() const
	{
		return HeightOverride;
	}

	void SetWidthOverride(float InWidthOverride);
	void ClearWidthOverride();
	void SetHeightOverride(float InHeightOverride);
	void ClearHeightOverride();

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual UClass* GetSlotClass() const override;
	virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

private:
	TSharedPtr<SBox> MySizeBox;
};
