kind XY
surface screen
size 8
box 4150000
box  318000
box    6000
box    2000
point 4150010.0 322000.0 가
point 4154010.0 322500.0 나
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print 4150000
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5959
print 4152000
Line 141.2345 2706.9955 7626.6656 2706.9955 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6868
print 4154000
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print 4156000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  318000
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 7  320000
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 7  322000
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  324000
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 5060.9046 7403.0441 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 5060.9046 7282.0841 5060.9046 7523.9762 0 6
Line 4939.9447 7403.0441 5181.8735 7403.0441 0 6
fontsize = 8.0000
CurrentX = 4849.0526
CurrentY = 7133.8095
print 가
DrawWidth = 2.0000
Circle 5649.3816 2695.2259 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 5649.3816 2574.2659 5649.3816 2816.1580 0 6
Line 5528.4217 2695.2259 5770.3506 2695.2259 0 6
fontsize = 8.0000
CurrentX = 5437.5301
CurrentY = 2425.9914
print 나
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
