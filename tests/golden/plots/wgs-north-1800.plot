kind WGS
surface screen
size 8
box   37.1000
box  126.5000
box    0.3500
box    0.0500
point 37.20944444444444 127.09194444444445 가
point 37.70944444444444 127.0925 나-2
point 37.20986111111111 127.09208333333333 C3
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print   37-10-00
Line 141.2345 6405.9954 7626.6656 6405.9954 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6242.6868
print   37-15-00
Line 141.2345 5397.1771 7626.6656 5397.1771 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5233.8685
print   37-20-00
Line 141.2345 4388.3589 7626.6656 4388.3589 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4225.0503
print   37-25-00
Line 141.2345 3379.5407 7626.6656 3379.5407 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3216.2320
print   37-30-00
Line 141.2345 2370.7224 7626.6656 2370.7224 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2207.4138
print   37-35-00
Line 141.2345 1361.9042 7626.6656 1361.9042 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1198.5955
print   37-40-00
Line 141.2345 353.0859 7626.6656 353.0859 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7773
print   37-45-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  126-50-00
SelectObject
DeleteObject
Line 1361.9046 7626.6655 1361.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 77 523 10  126-55-00
SelectObject
DeleteObject
Line 2370.7229 7626.6655 2370.7229 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 144 523 10  127-00-00
SelectObject
DeleteObject
Line 3379.5412 7626.6655 3379.5412 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 211 523 10  127-05-00
SelectObject
DeleteObject
Line 4388.3595 7626.6655 4388.3595 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 278 523 10  127-10-00
SelectObject
DeleteObject
Line 5397.1775 7626.6655 5397.1775 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 346 523 10  127-15-00
SelectObject
DeleteObject
Line 6405.9960 7626.6655 6405.9960 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 413 523 10  127-20-00
SelectObject
DeleteObject
Line 7414.8141 7626.6655 7414.8141 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-25-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3483.7548 6896.9690 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3483.7548 6776.0090 3483.7232 7017.9424 0 6
Line 3362.7947 6896.9690 3604.7149 6896.9507 0 6
fontsize = 8.0000
CurrentX = 3271.9030
CurrentY = 6627.7345
print 가
DrawWidth = 2.0000
Circle 3490.4802 844.0597 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3490.4802 723.0997 3490.4655 965.0331 0 6
Line 3369.5201 844.0597 3611.4572 844.0414 0 6
fontsize = 8.0000
CurrentX = 3278.6284
CurrentY = 574.8252
print 나-2
DrawWidth = 2.0000
Circle 3485.4362 6891.9249 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3485.4362 6770.9649 3485.4780 7012.8626 0 6
Line 3364.4761 6891.9249 3606.3773 6891.9171 0 6
fontsize = 8.0000
CurrentX = 3273.5843
CurrentY = 6622.6904
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
