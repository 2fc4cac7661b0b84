// SPDX-License-Identifier: MIT
#include "SplitterView.h"

#include <QSplitter>

#include "ViewWorld.h"

#include "Host/DockNodes.h"
#include "Host/Docking.h"
#include "Host/WidgetTree.h"

#include <algorithm>
#include <utility>

namespace Host
{

namespace
{

/** A splitter that keeps the model's shares while its size changes. */
class FSplitter : public QSplitter
{
public:
	using QSplitter::QSplitter;

	/** How one widget of the splitter gets its room. */
	struct FPart
	{
		double Share = 0; // in proportion to the others; 0 for what is not seen
		int Fixed = -1;	  // pixels that it takes before the others share; -1: none

		bool operator==(const FPart&) const = default;
	};

	std::vector<FPart> Parts;

	void ApplyParts()
	{
		double Sum = 0;
		int Seen = 0;
		int Room = Along(size());
		for (const FPart& Part : Parts)
		{
			Seen += Part.Share > 0;
			Sum += Part.Fixed < 0 ? Part.Share : 0;
			Room -= std::max(0, Part.Fixed);
		}
		Room -= std::max(0, Seen - 1) * handleWidth();
		if (Seen == 0 || Along(size()) <= 0 || static_cast<int>(Parts.size()) != count())
		{
			return;
		}
		QList<int> Sizes;
		for (const FPart& Part : Parts)
		{
			const int Size = Part.Fixed >= 0 ? Part.Fixed : Sum > 0 ? qRound(std::max(0, Room) * Part.Share / Sum) : 0;
			Sizes << std::max(Part.Share > 0 ? 1 : 0, Size);
		}
		setSizes(Sizes);
		for (int Index = 1; Index < count(); ++Index)
		{
			const auto At = static_cast<std::size_t>(Index);
			handle(Index)->setEnabled(Parts[At - 1].Fixed < 0 && Parts[At].Fixed < 0);
		}
	}

	int Along(const QSize& Size) const { return orientation() == Qt::Horizontal ? Size.width() : Size.height(); }

protected:
	void resizeEvent(QResizeEvent* Event) override
	{
		QSplitter::resizeEvent(Event);
		ApplyParts();
	}
};

class FSplitterView : public FWidgetView
{
public:
	FSplitterView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, Qt::Orientation Orientation)
		: FWidgetView(InWorld, InModel, new FSplitter(Orientation))
	{
		Splitter().setChildrenCollapsible(false);
		Splitter().setHandleWidth(4);
		const TWeakPtr<SWidget> Weak = InModel;
		QObject::connect(&Splitter(), &QSplitter::splitterMoved, &Splitter(),
			[this, Weak](int, int)
			{
				if (const TSharedPtr<SWidget> Model = Weak.Pin())
				{
					TellShares(static_cast<SDockSplitter&>(*Model));
				}
			});
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		SDockSplitter& Dock = static_cast<SDockSplitter&>(Model);
		const std::uint32_t Now = StructureVersion(Model);
		const bool bNew = !bTaken || Now != Structure;
		if (bNew)
		{
			bTaken = true;
			Structure = Now;
			TakeNodes(Dock);
		}
		for (const std::unique_ptr<FWidgetView>& Node : Nodes)
		{
			Node->Follow();
		}
		std::vector<FSplitter::FPart> Parts = PartsOf(Dock);
		if (bNew || Parts != Splitter().Parts)
		{
			Splitter().Parts = std::move(Parts);
			Splitter().ApplyParts();
		}
	}

private:
	FSplitter& Splitter() const { return *static_cast<FSplitter*>(Native()); }

	/** Parts of their content's size take that, unless there is nothing else to take the rest. */
	static bool IsShared(const SDockSplitter& Dock, const SDockNode& Node)
	{
		return Node.HasOpenTabs() && (!Node.IsAutosized() || Dock.IsAutosized());
	}

	std::vector<FSplitter::FPart> PartsOf(const SDockSplitter& Dock) const
	{
		std::vector<FSplitter::FPart> Parts;
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			const TSharedRef<SDockNode> Node = Dock.GetNode(Index);
			FSplitter::FPart& Part = Parts.emplace_back();
			if (Node->HasOpenTabs())
			{
				Part.Share = static_cast<double>(Node->GetSizeCoefficient());
				const QWidget& Content = *Nodes[static_cast<std::size_t>(Index)]->Native();
				Part.Fixed =
					IsShared(Dock, *Node) ? -1 : Splitter().Along(Content.sizeHint().expandedTo(Content.minimumSize()));
			}
		}
		return Parts;
	}

	void TakeNodes(SDockSplitter& Dock)
	{
		std::vector<std::unique_ptr<FWidgetView>> Former = std::move(Nodes);
		Nodes.clear();
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			const TSharedRef<SDockNode> Node = Dock.GetNode(Index);
			const auto Known = std::find_if(Former.begin(), Former.end(),
				[&Node](const std::unique_ptr<FWidgetView>& View) { return View && View->Model() == Node; });
			Nodes.push_back(Known != Former.end() ? std::move(*Known) : World.Make(Node));
			Splitter().insertWidget(Index, Nodes.back()->Native());
		}
		Former.clear(); // takes its native widgets out, which the splitter counts
	}

	void TellShares(SDockSplitter& Dock)
	{
		const QList<int> Sizes = Splitter().sizes();
		if (Sizes.size() != Dock.NumNodes())
		{
			return;
		}
		double Pixels = 0;
		double Sum = 0;
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			if (IsShared(Dock, *Dock.GetNode(Index)))
			{
				Pixels += Sizes[Index];
				Sum += static_cast<double>(Dock.GetNode(Index)->GetSizeCoefficient());
			}
		}
		TArray<float> Shares;
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			const TSharedRef<SDockNode> Node = Dock.GetNode(Index);
			// What takes no room, or its content's, keeps its share for later.
			const double Share = IsShared(Dock, *Node) && Pixels > 0 ? Sum * std::max(1, Sizes[Index]) / Pixels
																	 : static_cast<double>(Node->GetSizeCoefficient());
			Shares.Add(static_cast<float>(Share));
		}
		if (ResizeSplitter(Dock, Shares))
		{
			Splitter().Parts = PartsOf(Dock);
		}
	}

	std::vector<std::unique_ptr<FWidgetView>> Nodes;
	bool bTaken = false;
	std::uint32_t Structure = 0;
};

} // namespace

std::unique_ptr<FWidgetView> MakeSplitterView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	const auto& Splitter = static_cast<const SDockSplitter&>(Model.Get());
	return std::make_unique<FSplitterView>(
		World, Model, Splitter.GetOrientation() == Orient_Horizontal ? Qt::Horizontal : Qt::Vertical);
}

} // namespace Host
