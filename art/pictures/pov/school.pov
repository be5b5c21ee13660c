// school.pov -- 2x2, tall.  Dark slate roofs, a white bell turret, a sandy yard
// with a swing, a green front.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
#declare Wall = C("EBCB92"); #declare Trim = C("F7EFDC"); #declare Slate = C("59616F");
// long house at the back, gabled wing towards the viewer on the left
#declare X0 = 0.22; #declare Y0 = 0.24; #declare X1 = 1.78; #declare Y1 = 0.76; #declare H = 0.42;
#declare Wx1 = 0.80; #declare Wy1 = 1.36; #declare Wm = (X0+Wx1)/2;
box { <0.80, 0.76, 0>, <1.86, 1.44, 0.005> mDirt(C("E2CD98")) }
cylinder { 0, z*0.005, 0.28 translate <1.58,1.40,0> mDirt(C("E2CD98")) }
box { <X0-0.02, Y0-0.02, 0>, <X1+0.02, Y1+0.02, 0.06> mPlain(cStone) }
box { <X0-0.02, Y1, 0>, <Wx1+0.02, Wy1+0.02, 0.06> mPlain(cStone) }
box { <X0, Y0, 0>, <X1, Y1, H> mPlaster(Wall) }
box { <X0, Y1-0.05, 0>, <Wx1, Wy1, H> mPlaster(Wall) }
GableWall(X0, Y0, X1, Y1, H, 0.30, 0, Wall)
GableRoof(X0, Y0, X1, Y1, H, 0.30, 0, 0.05, Slate, 0.15, 141)
GableWall(X0, 0.50, Wx1, Wy1, H, 0.32, 1, Wall)
GableRoof(X0, 0.50, Wx1, Wy1, H, 0.32, 1, 0.05, Slate, 0.15, 142)
RidgeTiles(<X0-0.05, 0.50, H+0.33>, <X1+0.05, 0.50, H+0.33>, 0.03, C("8E97A6"))
RidgeTiles(<Wm, 0.60, H+0.35>, <Wm, Wy1+0.05, H+0.35>, 0.03, C("8E97A6"))
#declare I = 0;
#while (I < 4)
  Window(<0.96 + 0.225*I, Y1, 0.13>, x, 0.095, 0.20, 0, cBeam)
  #declare I = I + 1;
#end
Window(<X1, 0.62, 0.13>, -y, 0.09, 0.20, 0, cBeam)
Window(<X1, 0.38, 0.13>, -y, 0.09, 0.20, 0, cBeam)
Window(<X1, 0.50, 0.46>, -y, 0.08, 0.11, 0, cBeam)
Window(<X0+0.12, Wy1, 0.13>, x, 0.07, 0.19, 0, cBeam)
Window(<Wx1-0.12, Wy1, 0.13>, x, 0.07, 0.19, 0, cBeam)
Door(<Wm, Wy1, 0.02>, x, 0.14, 0.29, C("3A62A0"))
cylinder { <Wm, Wy1, 0.525>, <Wm, Wy1+0.02, 0.525>, 0.088 mPlain(C("3A62A0")) }
cylinder { <Wm, Wy1, 0.525>, <Wm, Wy1+0.026, 0.525>, 0.066 mPlain(C("FFFFFF")) }
cylinder { <Wm, Wy1+0.03, 0.525>, <Wm, Wy1+0.03, 0.575>, 0.009 mPlain(C("222222")) }
cylinder { <Wm, Wy1+0.03, 0.525>, <Wm+0.035, Wy1+0.03, 0.525>, 0.009 mPlain(C("222222")) }
Window(<Wx1, 0.98, 0.13>, -y, 0.09, 0.20, 0, cBeam)
Window(<Wx1, 1.20, 0.13>, -y, 0.09, 0.20, 0, cBeam)
// bell turret: an open white lantern with a bell, on the long roof
#declare Tx = 1.06; #declare Ty = 0.50;
box { <Tx-0.12, Ty-0.12, 0.58>, <Tx+0.12, Ty+0.12, 0.80> mPlaster(Trim) }
box { <Tx-0.14, Ty-0.14, 0.79>, <Tx+0.14, Ty+0.14, 0.82> mPlain(cPlasterW) }
#declare I = 0;
#while (I < 4)
  cylinder { <0.10,0.10,0.82>, <0.10,0.10,1.00>, 0.024 rotate z*90*I translate <Tx,Ty,0> mPlain(cPlasterW) }
  #declare I = I + 1;
#end
sphere { 0, 0.06 scale <1,1,1.2> translate <Tx,Ty,0.91> MatF(pigment { rgb cGold }, Shiny) }
HipRoof(Tx-0.12, Ty-0.12, Tx+0.12, Ty+0.12, 1.00, 0.26, 0.045, Slate, 0.12, 143)
sphere { <Tx, Ty, 1.28>, 0.03 MatF(pigment { rgb cGold }, Shiny) }
// swing, bench, flag, hedge and fence
#macro Swing(P)
  union {
    #local I = -1;
    #while (I < 2)
      cylinder { <-0.08,0.20*I,0>, <0,0.20*I,0.30>, 0.015 } cylinder { <0.08,0.20*I,0>, <0,0.20*I,0.30>, 0.015 }
      #local I = I + 2;
    #end
    cylinder { <0,-0.22,0.30>, <0,0.22,0.30>, 0.016 }
    mPlain(C("C8452F")) translate P
  }
  #local I = -1;
  #while (I < 2)
    box { <-0.03+0.03*I,-0.045,0.085>, <0.03+0.03*I,0.045,0.10> translate P + <0,0.09*I,0> mPlain(cWoodLight) }
    cylinder { P + <0.03*I,0.05*I,0.10>, P + <0,0.05*I,0.30>, 0.006 mPlain(cIron) }
    cylinder { P + <0.03*I,0.13*I,0.10>, P + <0,0.13*I,0.30>, 0.006 mPlain(cIron) }
    #local I = I + 2;
  #end
#end
Swing(<1.30, 1.16, 0>)
box { <1.52,0.98,0.07>, <1.60,1.24,0.09> mPlain(cWood) } box { <1.54,1.00,0>, <1.58,1.04,0.07> mPlain(cBeam) } box { <1.54,1.18,0>, <1.58,1.22,0.07> mPlain(cBeam) }
sphere { <1.42,1.44,0.035>, 0.035 mPlain(C("F0D040")) }
Fence(<0.94, 1.90, 0>, <1.90, 1.90, 0>, 0.13, 9)
Fence(<1.90, 1.90, 0>, <1.90, 0.84, 0>, 0.13, 10)
Path(<Wm, Wy1+0.10, 0>, <Wm+0.04, 1.94, 0>, 6, 0.06, 147)
Tree(<0.16, 1.66, 0>, 0.14, 0.18, cLeaf, 144)
Tree(<1.70, 1.72, 0>, 0.14, 0.12, cLeafDark*1.2, 145)
FlowerBush(<0.74, 1.66, 0>, 0.075, cLeaf, C("F2D14A"), 146)
FlowerBush(<1.08, 1.74, 0>, 0.075, cLeaf, C("E8607A"), 148)
Bush(<1.36, 1.76, 0>, 0.08, cLeaf, 149)
