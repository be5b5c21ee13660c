// doctor.pov -- one cell, tall.  White walls, light grey slate, a green cross
// in the gable, a herb bed.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
Cobbles(0.03, 0.03, 0.97, 0.97, 0.085, C("DAD5C8"), 130)
#declare White = C("F4F8FF"); #declare Roof = C("B9C1CB"); #declare Green = C("22A85C");
#declare X0 = 0.10; #declare Y0 = 0.10; #declare X1 = 0.84; #declare Y1 = 0.58; #declare H = 0.44;
#declare Gx0 = 0.16; #declare Gx1 = 0.68; #declare Gy = 0.72; #declare Gm = (Gx0+Gx1)/2;
box { <X0-0.02, Y0-0.02, 0>, <X1+0.02, Y1+0.02, 0.05> mPlain(C("AEB3B8")) }
box { <Gx0-0.02, Y1, 0>, <Gx1+0.02, Gy+0.02, 0.05> mPlain(C("AEB3B8")) }
box { <X0, Y0, 0>, <X1, Y1, H> mPlaster(White) }
box { <Gx0, Y1-0.1, 0>, <Gx1, Gy, H> mPlaster(White) }
GableWall(X0, Y0, X1, Y1, H, 0.30, 0, White)
GableRoof(X0, Y0, X1, Y1, H, 0.30, 0, 0.045, Roof, 0.11, 131)
GableWall(Gx0, 0.34, Gx1, Gy, H, 0.29, 1, White)
GableRoof(Gx0, 0.34, Gx1, Gy, H, 0.29, 1, 0.022, Roof, 0.11, 132)
// the cross, over the door
box { <Gm-0.034, Gy, 0.335>, <Gm+0.034, Gy+0.03, 0.575> mPlain(Green) }
box { <Gm-0.12, Gy, 0.425>, <Gm+0.12, Gy+0.03, 0.485> mPlain(Green) }
Door(<Gm, Gy, 0.01>, x, 0.12, 0.24, C("4A7F9E"))
Window(<Gm-0.17, Gy, 0.12>, x, 0.07, 0.13, 0, White)
Window(<Gm+0.17, Gy, 0.12>, x, 0.07, 0.13, 0, White)
Window(<X1, Y1-0.13, 0.15>, -y, 0.08, 0.14, 0, White)
Window(<X1, Y0+0.13, 0.15>, -y, 0.08, 0.14, 0, White)
Window(<X1, (Y0+Y1)/2, 0.47>, -y, 0.07, 0.10, 0, White)
Window(<X1-0.08, Y1, 0.15>, x, 0.06, 0.12, 0, White)
Chimney(<0.72, 0.24, H+0.10>, 0.085, 0.22)
// herbs
box { <0.12, 0.80, 0>, <0.34, 0.93, 0.02> mDirt(cSoil) }
box { <0.60, 0.80, 0>, <0.88, 0.93, 0.02> mDirt(cSoil) }
Bush(<0.17, 0.86, 0.01>, 0.045, cLeaf, 133)
FlowerBush(<0.28, 0.86, 0.01>, 0.045, cLeaf, C("B98AE0"), 134)
FlowerBush(<0.66, 0.86, 0.01>, 0.045, cLeaf, C("F4F0E0"), 135)
FlowerBush(<0.79, 0.86, 0.01>, 0.05, cLeaf, C("B98AE0"), 136)
Bush(<0.92, 0.66, 0.0>, 0.06, cLeafDark, 137)
