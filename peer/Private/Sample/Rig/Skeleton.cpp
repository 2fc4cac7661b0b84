// SPDX-License-Identifier: MIT
#include "Sample/Rig/Skeleton.h"

#include "Sample/Body/Hand.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

FSkeleton::FSkeleton()
{
	using namespace Measures;
	const int Root = Add("root", -1, {0, 0, 0}, {0, 0, 0});
	const int PelvisJoint = Add("pelvis", Root, Pelvis, Spine1);
	const int S1 = Add("spine_01", PelvisJoint, Spine1, Spine2);
	const int S2 = Add("spine_02", S1, Spine2, Spine3);
	const int S3 = Add("spine_03", S2, Spine3, Spine4);
	const int S4 = Add("spine_04", S3, Spine4, Spine5);
	const int S5 = Add("spine_05", S4, Spine5, Neck1);
	const int N1 = Add("neck_01", S5, Neck1, Neck2);
	const int N2 = Add("neck_02", N1, Neck2, Head);
	const int HeadJoint = Add("head", N2, Head, HeadTop);
	Add("eye_l", HeadJoint, EyeBall * FVec3{1, -1, 1}, EyeBall * FVec3{1, -1, 1});
	Add("eye_r", HeadJoint, EyeBall, EyeBall);
	AddSide(false, S5, PelvisJoint);
	AddSide(true, S5, PelvisJoint);
	MeasureSteps();
}

int FSkeleton::Add(const std::string& Name, int Parent, const FVec3& Place, const FVec3& End)
{
	All.push_back({Name, Parent, Place, End});
	return Count() - 1;
}

void FSkeleton::AddSide(bool bRight, int Spine5, int Pelvis)
{
	using namespace Measures;
	const FVec3 Mirror{1, bRight ? 1.0f : -1.0f, 1};
	const std::string Ending = bRight ? "_r" : "_l";
	const auto AddHere = [&](const std::string& Name, int Parent, const FVec3& Place, const FVec3& End)
	{
		const int Joint = Add(Name + Ending, Parent, Place * Mirror, End * Mirror);
		All.back().Side = bRight ? 1 : -1;
		All.back().bHand = Name == "hand" || (Parent >= 0 && All[static_cast<std::size_t>(Parent)].bHand);
		return Joint;
	};

	const FVec3 HalfUpper = Lerp(Shoulder, Elbow(), 0.5f), HalfLower = Lerp(Elbow(), Wrist(), 0.5f);
	const int ClavicleJoint = AddHere("clavicle", Spine5, Clavicle, Shoulder);
	const int Upper = AddHere("upperarm", ClavicleJoint, Shoulder, HalfUpper);
	AddHere("upperarm_twist_01", Upper, HalfUpper, Elbow());
	const int Lower = AddHere("lowerarm", Upper, Elbow(), HalfLower);
	AddHere("lowerarm_twist_01", Lower, HalfLower, Wrist());
	const FHand& Bones = RightHand();
	const int HandJoint = AddHere("hand", Lower, Wrist(), Wrist() + Bones.Along * 3.0f);
	const char* Names[FingerCount] = {"thumb", "index", "middle", "ring", "pinky"};
	for (int F = 0; F < FingerCount; ++F)
	{
		const FFinger& Finger = Bones.Fingers[static_cast<std::size_t>(F)];
		int Parent = HandJoint;
		if (F != Thumb)
		{
			Parent = AddHere(std::string(Names[F]) + "_metacarpal", Parent, Finger.Palm, Finger.Joints[0]);
		}
		for (std::size_t J = 0; J < 3; ++J)
		{
			Parent = AddHere(
				std::string(Names[F]) + "_0" + std::to_string(J + 1), Parent, Finger.Joints[J], Finger.Joints[J + 1]);
		}
	}

	const FVec3 HalfThigh = Lerp(Hip, Knee, 0.5f);
	const int Thigh = AddHere("thigh", Pelvis, Hip, HalfThigh);
	AddHere("thigh_twist_01", Thigh, HalfThigh, Knee);
	const int Calf = AddHere("calf", Thigh, Knee, Ankle);
	const int Foot = AddHere("foot", Calf, Ankle, Ball);
	AddHere("ball", Foot, Ball, ToeTip);
}

int FSkeleton::Find(const std::string& Name) const
{
	for (int J = 0; J < Count(); ++J)
	{
		if (All[static_cast<std::size_t>(J)].Name == Name)
		{
			return J;
		}
	}
	return -1;
}

void FSkeleton::MeasureSteps()
{
	const int N = Count();
	std::vector<int> Depth(static_cast<std::size_t>(N), 0);
	for (int J = 0; J < N; ++J)
	{
		const int Parent = All[static_cast<std::size_t>(J)].Parent;
		Depth[static_cast<std::size_t>(J)] = Parent < 0 ? 0 : Depth[static_cast<std::size_t>(Parent)] + 1;
	}
	Steps.resize(static_cast<std::size_t>(N * N));
	for (int A = 0; A < N; ++A)
	{
		for (int B = 0; B < N; ++B)
		{
			int X = A, Y = B, Way = 0;
			while (X != Y)
			{
				int& Deeper = Depth[static_cast<std::size_t>(X)] >= Depth[static_cast<std::size_t>(Y)] ? X : Y;
				Deeper = All[static_cast<std::size_t>(Deeper)].Parent;
				++Way;
			}
			Steps[static_cast<std::size_t>(A * N + B)] = Way;
		}
	}
}

std::vector<FRigid> PlaceJoints(const FSkeleton& Skeleton, const FPose& Pose)
{
	std::vector<FRigid> Places;
	Places.reserve(Skeleton.Joints().size());
	for (const FRigJoint& Joint : Skeleton.Joints())
	{
		const FVec4& Turn = Pose.Turns[Places.size()];
		if (Joint.Parent < 0)
		{
			Places.push_back({Turn, Joint.Place});
			continue;
		}
		const auto Parent = static_cast<std::size_t>(Joint.Parent);
		FVec3 Offset = Joint.Place - Skeleton.Joints()[Parent].Place;
		// The pelvis is the child of the root that stands on the floor, and the only one.
		if (Joint.Parent == 0)
		{
			Offset += Pose.PelvisShift;
		}
		Places.push_back(Places[Parent] * FRigid{Turn, Offset});
	}
	return Places;
}

std::vector<FRigid> MovesFromSymmetric(const FSkeleton& Skeleton, const std::vector<FRigid>& Places)
{
	std::vector<FRigid> Moves;
	Moves.reserve(Places.size());
	for (const FRigJoint& Joint : Skeleton.Joints())
	{
		const FRigid& Place = Places[Moves.size()];
		Moves.push_back(Place * FRigid{{0, 0, 0, 1}, -Joint.Place});
	}
	return Moves;
}

std::vector<FJoint> ToRecords(const FSkeleton& Skeleton, const std::vector<FRigid>& Places)
{
	std::vector<FJoint> Records;
	Records.reserve(Places.size());
	for (const FRigJoint& Joint : Skeleton.Joints())
	{
		const FRigid& Place = Places[Records.size()];
		const FRigid Local = Joint.Parent < 0 ? Place : Inverse(Places[static_cast<std::size_t>(Joint.Parent)]) * Place;
		FJoint Record;
		Record.Name = Joint.Name;
		Record.ParentIndex = Joint.Parent;
		Record.Transform.Rotation = Normalized(Local.Rotation);
		Record.Transform.Translation = Local.Translation;
		Records.push_back(Record);
	}
	return Records;
}

} // namespace Zef::Peer
