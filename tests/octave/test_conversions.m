% Every conversion error reaches Octave with its identifier and exact text,
% and a refused value changes nothing.
color_count = ['Color requires three or four doubles between 0.0 and 1.0, [red,green,blue,(alpha)]. ' ...
               'Example: color = [0 1 0 1]'];
color_range = ['Color requires values between 0.0 and 1.0, specified in a double vector as follows: ' ...
               '[red green blue alpha]'];
rect_text = 'DRect requires exactly four doubles. Ex: rect = [1.0, 2.3, 3.5, -0.3]';
point_text = 'DPoint requires exactly two doubles. Ex: rect = [1.0, 2.3]';
size_text = 'DSize requires exactly two doubles. Ex: rect = [1.0, 2.3]';

% Colours: five elements give the first text, one out of range the second.
s = VOR2.Stroke([0 0 1], 1);
expect_error(@() set_property(s, 'Color', [0 0 0 0 0]), 'Color:InvalidValue', color_count);
expect_error(@() set_property(s, 'Color', 'red'), 'Color:InvalidValue', color_count);
expect_error(@() set_property(s, 'Color', [0 0 1.5 1]), 'Color:InvalidValue', color_range);
expect_error(@() VOR2.Fill([0 -0.1 0]), 'Color:InvalidValue', color_range);
assert(s.Color, [0 0 1 1]);

% Rectangles, points and sizes.
expect_error(@() VOR2.Ellipse([1 2 3]), 'DRect:InvalidValue', rect_text);
expect_error(@() set_property(VOR2.RectNode(), 'Rect', [1 2; 3 4]), 'DRect:InvalidValue', rect_text);
v = VOR2.Vertex([1 2]);
expect_error(@() set_property(v, 'Position', [1 2 3]), 'DPoint:InvalidValue', point_text);
expect_error(@() VOR2.Gradient('Linear', 5, [1 1]), 'DPoint:InvalidValue', point_text);
assert(v.Position, [1 2]);

% Scalars and strings name what they expected and what they got.
expect_error(@() set_property(s, 'Width', [1 2]), 'VOR2:WrongType', 'Expected double scalar, got 1x2 double');
expect_error(@() set_property(VOR2.Font(), 'Family', 12), 'VOR2:WrongType', 'Expected char, got 1x1 double');

% Enumerations by name, with every name listed.
expect_error(@() set_property(s, 'CapStyle', 'Round'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: FlatCap, SquareCap, RoundCap');
expect_error(@() set_property(VOR2.Fill(), 'Style', 1), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: NoFill, Solid, GradientFill');
expect_error(@() set_property(VOR2.Gradient(), 'Spread', 'pad'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: Pad, Reflect, Repeat');
assert(s.CapStyle, 'FlatCap');

% Sizes, transforms and point lists, through the node classes that take them.
if has_member('VOR2.EllipseNode', 'Size')
  expect_error(@() set_property(VOR2.EllipseNode(), 'Size', [1 2 3]), 'DSize:InvalidValue', size_text);
end
if has_member('VOR2.Node', 'Transform')
  r = VOR2.RectNode([0 0 1 1]);
  expect_error(@() set_property(r, 'Transform', eye(2)), 'VOR2:Expected3By3', 'Transform requires a 3x3 matrix');
  expect_error(@() set_property(r, 'Transform', 1:9), 'VOR2:Expected3By3', 'Transform requires a 3x3 matrix');
  assert(r.Transform, eye(3));
end
if has_member('VOR2.LinearPathNode', 'setPoints')
  p = VOR2.OpenLinearPathNode();
  expect_error(@() p.setPoints(ones(3, 3)), 'VOR2:Expected2By2', 'Expected either a [2 x n] or [n x 2] array');
end
