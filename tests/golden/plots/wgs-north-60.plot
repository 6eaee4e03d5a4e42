kind WGS
surface screen
size 8
box   37.1230
box  127.0500
box    0.0110
box    0.0010
point 37.20944444444444 127.09194444444445 가
point 37.22611111111111 127.0925 나-2
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
print   37-12-30
Line 141.2345 6405.9955 7626.6656 6405.9955 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6242.6868
print   37-12-40
Line 141.2345 5397.1773 7626.6656 5397.1773 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5233.8687
print   37-12-50
Line 141.2345 4388.3591 7626.6656 4388.3591 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4225.0505
print   37-13-00
Line 141.2345 3379.5410 7626.6656 3379.5410 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3216.2323
print   37-13-10
Line 141.2345 2370.7228 7626.6656 2370.7228 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2207.4142
print   37-13-20
Line 141.2345 1361.9046 7626.6656 1361.9046 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1198.5960
print   37-13-30
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7778
print   37-13-40
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-00
SelectObject
DeleteObject
Line 1361.9045 7626.6655 1361.9045 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 77 523 10  127-05-10
SelectObject
DeleteObject
Line 2370.7227 7626.6655 2370.7227 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 144 523 10  127-05-20
SelectObject
DeleteObject
Line 3379.5410 7626.6655 3379.5410 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 211 523 10  127-05-30
SelectObject
DeleteObject
Line 4388.3590 7626.6655 4388.3590 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 278 523 10  127-05-40
SelectObject
DeleteObject
Line 5397.1771 7626.6655 5397.1771 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 346 523 10  127-05-50
SelectObject
DeleteObject
Line 6405.9952 7626.6655 6405.9952 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 413 523 10  127-06-00
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-06-10
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3479.4990 7010.8246 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3479.4990 6889.8646 3478.5508 7132.1919 0 6
Line 3358.5389 7010.8246 3600.4660 7010.2766 0 6
fontsize = 8.0000
CurrentX = 3267.6472
CurrentY = 6741.5900
print 가
DrawWidth = 2.0000
Circle 3681.2628 957.9157 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3681.2628 836.9557 3680.8194 1079.3753 0 6
Line 3560.3027 957.9157 3802.7344 957.4601 0 6
fontsize = 8.0000
CurrentX = 3469.4108
CurrentY = 688.6812
print 나-2
DrawWidth = 2.0000
Circle 3529.9399 6859.5019 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3529.9399 6738.5418 3531.1961 6979.7978 0 6
Line 3408.9798 6859.5019 3650.3407 6859.2679 0 6
fontsize = 8.0000
CurrentX = 3318.0881
CurrentY = 6590.2673
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
