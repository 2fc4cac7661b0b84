// SPDX-License-Identifier: MIT
// Position-based dynamics in small steps: Müller et al., "Position Based Dynamics" (2007), and Macklin et al., "Small
// Steps in Physics Simulation" (2019).
#include "Sample/Cloth/Cloth.h"

namespace Zef::Peer
{

namespace
{

constexpr float Gravity = 981; // cm/s2

} // namespace

FCloth::FCloth(int Columns, int Rows, bool bClosed, const FClothNature& Nature)
	: Positions(static_cast<std::size_t>(Columns * Rows))
	, bFree(static_cast<std::size_t>(Columns * Rows), 1)
	, ColumnCount(Columns)
	, RowCount(Rows)
	, bClosed(bClosed)
	, Nature(Nature)
	, Speeds(static_cast<std::size_t>(Columns * Rows))
	, Contacts(static_cast<std::size_t>(Columns * Rows), FBodyCollider::None)
{
}

void FCloth::AddLink(std::size_t A, std::size_t B, float Length, float Share)
{
	Links.push_back({static_cast<std::uint32_t>(A), static_cast<std::uint32_t>(B), Length, Share});
}

void FCloth::SetPattern(const std::vector<float>& RowRadii, float AnglePerColumn)
{
	Links.clear();
	Radii = RowRadii;
	ColumnAngle = AnglePerColumn;
	const auto Link = [&](int C0, int R0, int C1, int R1, float Share)
	{
		if (R1 < RowCount && (bClosed || (C0 < ColumnCount && C1 < ColumnCount)))
		{
			const float A = RowRadii[static_cast<std::size_t>(R0)], B = RowRadii[static_cast<std::size_t>(R1)];
			const float Angle = AnglePerColumn * static_cast<float>(C1 - C0);
			const float Squared = A * A + B * B - 2 * A * B * std::cos(Angle);
			AddLink(At(C0 % ColumnCount, R0), At(C1 % ColumnCount, R1), std::sqrt(std::max(Squared, 0.0f)), Share);
		}
	};
	// From the top down, so that a pull from the held row runs through in one pass.
	for (int R = 0; R < RowCount; ++R)
	{
		for (int C = 0; C < ColumnCount; ++C)
		{
			Link(C, R, C + 1, R, Nature.Stretch);
			Link(C, R, C, R + 1, Nature.Stretch);
			Link(C, R, C + 1, R + 1, Nature.Shear);
			Link(C + 1, R, C, R + 1, Nature.Shear);
			Link(C, R, C + 2, R, Nature.Bend);
			Link(C, R, C, R + 2, Nature.Bend);
		}
	}
}

FVec2 FCloth::PatternPlace(float Column, float Row) const
{
	constexpr float Decimetre = 10;
	const auto Above = std::min(static_cast<std::size_t>(Row), Radii.size() - 2);
	const float Radius = Lerp(Radii[Above], Radii[Above + 1], Row - static_cast<float>(Above));
	const float Angle = Column * ColumnAngle;
	return {Radius * std::sin(Angle) / Decimetre, Radius * std::cos(Angle) / Decimetre};
}

void FCloth::Rest()
{
	for (FVec3& Speed : Speeds)
	{
		Speed = {};
	}
}

void FCloth::FindContacts(const FBodyCollider& Body)
{
	for (std::size_t V = 0; V < Positions.size(); ++V)
	{
		Contacts[V] = Body.Nearest(Positions[V]);
	}
}

void FCloth::Solve(const std::vector<FLink>& Some)
{
	for (const FLink& Link : Some)
	{
		const float WeightA = bFree[Link.A], WeightB = bFree[Link.B];
		const float Sum = WeightA + WeightB;
		if (Sum == 0)
		{
			continue;
		}
		FVec3& A = Positions[Link.A];
		FVec3& B = Positions[Link.B];
		const FVec3 D = B - A;
		const float Now = Length(D);
		if (Now < 1e-6f)
		{
			continue;
		}
		const FVec3 Move = D * ((Now - Link.Length) / (Now * Sum) * Link.Share);
		A += Move * WeightA;
		B -= Move * WeightB;
	}
}

void FCloth::Collide(const FBodyCollider& Body)
{
	for (std::size_t V = 0; V < Positions.size(); ++V)
	{
		if (!bFree[V])
		{
			continue;
		}
		FVec3& P = Positions[V];
		if (Contacts[V] != FBodyCollider::None)
		{
			const FBodyCollider::FContact Contact = Body.ContactAt(P, Contacts[V]);
			if (Contact.Height < Nature.Thickness)
			{
				P += Contact.Normal * (Nature.Thickness - Contact.Height);
				const FVec3 Sliding = P - Previous[V] - Contact.Motion;
				P -= (Sliding - Contact.Normal * Dot(Sliding, Contact.Normal)) * Nature.Friction;
			}
		}
		P.Z = std::max(P.Z, Nature.Thickness);
	}
}

void FCloth::Step(const FBodyCollider& Body, float Seconds, const FVec3& Wind)
{
	Previous = Positions;
	const float Keep = std::exp(-Nature.Damping * Seconds);
	const float Pull = 1 - std::exp(-Nature.Drag * Seconds);
	for (std::size_t V = 0; V < Positions.size(); ++V)
	{
		if (bFree[V])
		{
			FVec3& Speed = Speeds[V];
			Speed = Speed * Keep + (Wind - Speed) * Pull;
			Speed.Z -= Gravity * Seconds;
			Positions[V] += Speed * Seconds;
		}
	}
	Solve(Links);
	Collide(Body);
	for (std::size_t V = 0; V < Positions.size(); ++V)
	{
		if (bFree[V])
		{
			Speeds[V] = (Positions[V] - Previous[V]) * (1 / Seconds);
		}
	}
}

} // namespace Zef::Peer
