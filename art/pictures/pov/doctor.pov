// doctor.pov -- one cell, tall.  White walls, light grey slate, a herb garden.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
Cobbles(0.05, 0.05, 0.95, 0.95, 0.085, C("D6CFBF"), 130)
#declare X0 = 0.17; #declare Y0 = 0.14; #declare X1 = 0.80; #declare Y1 = 0.66; #declare H = 0.46;
#declare White = C("F6F3EA");
box { <X0-0.02, Y0-0.02, 0>, <X1+0.02, Y1+0.02, 0.06> mPlain(C("B9BCC0")) }
box { <X0, Y0, 0>, <X1, Y1, H> mPlaster(White) }
GableWall(X0, Y0, X1, Y1, H, 0.30, 0, White)
GableRoof(X0, Y0, X1, Y1, H, 0.30, 0, 0.05, C("B4BBC4"), 0.12, 131)
box { <X0-0.015, Y0, 0.245>, <X1+0.015, Y1+0.015, 0.265> mPlain(C("C6CACE")) }
#declare Teal = C("3F8F7E");
Window(<X0+0.13, Y1, 0.31>, x, 0.075, 0.11, 0, Teal)
Window(<X0+0.50, Y1, 0.31>, x, 0.075, 0.11, 0, Teal)
Window(<X0+0.50, Y1, 0.10>, x, 0.075, 0.11, 0, Teal)
Door(<X0+0.15, Y1, 0.02>, x, 0.11, 0.21, Teal)
Window(<X1, Y1-0.14, 0.31>, -y, 0.07, 0.11, 0, Teal)
Window(<X1, Y0+0.13, 0.31>, -y, 0.07, 0.11, 0, Teal)
Window(<X1, Y1-0.14, 0.10>, -y, 0.07, 0.11, 0, Teal)
Window(<X1, Y0+0.13, 0.10>, -y, 0.07, 0.11, 0, Teal)
// sign: a green cross on white, over the lit wall
box { <X0+0.235, Y1, 0.29>, <X0+0.395, Y1+0.03, 0.45> mPlain(C("FFFFFF")) }
box { <X0+0.295, Y1+0.02, 0.30>, <X0+0.335, Y1+0.04, 0.44> mPlain(C("2E9A5C")) }
box { <X0+0.245, Y1+0.02, 0.35>, <X0+0.385, Y1+0.04, 0.39> mPlain(C("2E9A5C")) }
Chimney(<0.32, 0.30, H+0.10>, 0.09, 0.22)
// herbs in front
box { <0.44, 0.76, 0>, <0.86, 0.92, 0.02> mDirt(cSoil) }
Bush(<0.50, 0.84, 0.01>, 0.05, cLeaf, 132)
FlowerBush(<0.62, 0.84, 0.01>, 0.05, cLeaf, C("C79BE0"), 133)
FlowerBush(<0.74, 0.84, 0.01>, 0.05, cLeaf, C("F4F0E0"), 134)
Bush(<0.83, 0.84, 0.01>, 0.045, cLeafDark, 135)
Bush(<0.90, 0.30, 0.0>, 0.06, cLeafDark, 136)
