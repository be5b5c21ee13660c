// tent.pov -- one flat cell; the same picture stands on all four cells of a
// residence.  A point at height z needs min(x, y) >= 1.2247*z.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
#declare Yr = 0.575; #declare Zr = 0.445;        // ridge along x
#declare Xa = 0.55; #declare Xb = 0.86;          // ridge from, to
#declare X0 = 0.30; #declare Y0 = 0.28; #declare Y1 = 0.88;
#declare Band = C("C2A176"); #declare Rope = C("D8C49A");
cylinder { 0, z*0.004, 0.37 scale <1.05,0.98,1> translate <0.59,0.57,0> mDirt(C("8F8050")) }
#declare N = 7;
#declare I = 0;
#while (I < N)                                   // lit slope in bands of canvas
  #declare A = I/N; #declare B = (I+1)/N;
  #declare Cc = (mod(I,2) = 0 ? cCanvas : Band);
  #declare Pa = <X0 + (Xb-X0)*A, Y1, 0.015>; #declare Pb = <X0 + (Xb-X0)*B, Y1, 0.015>;
  #declare Qa = <Xa + (Xb-Xa)*A, Yr, Zr>; #declare Qb = <Xa + (Xb-Xa)*B, Yr, Zr>;
  #declare Ma = (Pa+Qa)/2 - <0,0.022,0.028>; #declare Mb = (Pb+Qb)/2 - <0,0.022,0.028>;
  mesh { triangle { Pa, Pb, Mb } triangle { Pa, Mb, Ma } triangle { Ma, Mb, Qb } triangle { Ma, Qb, Qa } mPlain(Cc) }
  cylinder { Pa, Pb, 0.014 mPlain(Band*0.7) }
  #declare I = I + 1;
#end
mesh { triangle { <X0,Y0,0>, <Xb,Y0,0>, <Xb,Yr,Zr> } triangle { <X0,Y0,0>, <Xb,Yr,Zr>, <Xa,Yr,Zr> } mPlain(cCanvas*0.9) }
mesh { triangle { <X0,Y0,0>, <X0,Y1,0.015>, <Xa,Yr,Zr> } mPlain(cCanvas) }
// front: flaps tied back from a dark entrance, a pole and a pennant
mesh { triangle { <Xb-0.06,Y0+0.01,0>, <Xb-0.06,Y1-0.01,0>, <Xb-0.02,Yr,Zr-0.01> } mPlain(C("3A2A1C")) }
mesh { triangle { <Xb,Y1,0.01>, <Xb+0.02,Yr+0.10,0.01>, <Xb,Yr,Zr> } mPlain(cCanvas*1.08) }
mesh { triangle { <Xb,Y0,0.01>, <Xb+0.02,Yr-0.10,0.01>, <Xb,Yr,Zr> } mPlain(cCanvas*1.08) }
cylinder { <Xb,Yr,0>, <Xb,Yr,Zr>, 0.014 mPlain(cBeam) }
cylinder { <Xa-0.01,Yr,Zr>, <Xb+0.02,Yr,Zr>, 0.016 mPlain(Band*0.8) }
cylinder { <Xb,Yr,Zr>, <0.95,Yr+0.04,0>, 0.006 mPlain(Rope) }
cylinder { <X0+0.08,Y1,0.03>, <X0+0.05,Y1+0.09,0>, 0.006 mPlain(Rope) }
cylinder { <Xb-0.06,Y1,0.03>, <Xb-0.05,Y1+0.09,0>, 0.006 mPlain(Rope) }
