// walker.pov -- a person on foot, feet at the middle of a 1-cell canvas.
// Dir 0..3: walking along +x, +y, -x, -y.  Step 0..3.  Who: kind of person.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
#ifndef (Dir) #declare Dir = 0; #end
#ifndef (Step) #declare Step = 1; #end
#ifndef (Who) #declare Who = 0; #end
Ground()
#declare Sw = 0.075*sin(Step*pi/2);
#declare Bob = 0.012*abs(cos(Step*pi/2));
#switch (Who)
  #case (0) #declare cCoat = C("3F6FC0"); #declare cHat = C("8A5A2A"); #declare cLegs = C("6A5038"); #break
  #case (1) #declare cCoat = C("C23A30"); #declare cHat = C("E8D8B0"); #declare cLegs = C("8A3028"); #break
  #case (3) #declare cCoat = C("4E8A4A"); #declare cHat = C("F0E6D0"); #declare cLegs = C("3F6A44"); #break
  #case (2) #declare cCoat = C("E9E4D6"); #declare cHat = C("D8B24A"); #declare cLegs = C("B8B0A0"); #break
#end
#declare cSkin = C("EDBB94");
union {
  // legs swing, arms swing against them; heads are big so that they read
  cone { <Sw, 0.028, 0>, 0.026, <0, 0.024, 0.13>, 0.036 mPlain(cLegs) }
  cone { <-Sw, -0.028, 0>, 0.026, <0, -0.024, 0.13>, 0.036 mPlain(cLegs*0.85) }
  union {
    #if (Who = 1 | Who = 3) cone { <0,0,0.03>, 0.085, <0,0,0.17>, 0.050 mPlain(cLegs) } #end
    cone { <0,0,0.10>, 0.070, <0,0,0.27>, 0.056 mPlain(cCoat) }
    cylinder { <0,0,0.150>, <0,0,0.170>, 0.068 mPlain(cBeamDark) }
    cone { <0,0.060,0.26>, 0.026, <-Sw*0.9, 0.078, 0.14>, 0.022 mPlain(cCoat*0.92) }
    cone { <0,-0.060,0.26>, 0.026, <Sw*0.9, -0.078, 0.14>, 0.022 mPlain(cCoat*0.92) }
    sphere { <-Sw*0.9, 0.078, 0.135>, 0.022 mPlain(cSkin) }
    sphere { <Sw*0.9, -0.078, 0.135>, 0.022 mPlain(cSkin) }
    // head a little forward, hair and hat well back: the face shows from in front
    sphere { <0.014,0,0.318>, 0.054 mPlain(cSkin) }
    sphere { 0, 0.056 scale <0.9,1.05,0.80> translate <-0.022,0,0.340> mPlain(cHat) }
    #if (Who = 2) cylinder { 0, z*0.008, 0.078 rotate -y*24 translate <-0.022,0,0.352> mPlain(cHat*0.9) } #end
    translate z*Bob
  }
  scale 0.86
  rotate z*90*Dir
  translate <0.5, 0.5, 0>
}
