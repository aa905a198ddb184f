% Text nodes: alignment and auto-size by name, and the int32 width.
blank = VOR2.TextNode();
assert(blank.Text, '');
t = VOR2.TextNode('Hello', [10 20]);
assert(t.Text, 'Hello');
assert(t.Position, [10 20]);
t.Text = 'Hello world';
assert(t.Text, 'Hello world');

assert(t.HorizontalAlignment, 'LEFT_TEXT');
assert(t.VerticalAlignment, 'BOTTOM_TEXT');
left = t.BoundingRect;
t.HorizontalAlignment = 'RIGHT_TEXT';
assert(t.HorizontalAlignment, 'RIGHT_TEXT');
right = t.BoundingRect;
assert(right(1), left(1) - left(3), 1e-6);
t.VerticalAlignment = 'TOP_TEXT';
assert(t.VerticalAlignment, 'TOP_TEXT');

expect_error(@() set_property(t, 'HorizontalAlignment', 'MIDDLE'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: LEFT_TEXT, H_CENTER_TEXT, RIGHT_TEXT');
expect_error(@() set_property(t, 'VerticalAlignment', 'left'), 'VOR2:ExpectedEnumValue', ...
             ['Expected one of the following values: BASELINE_TEXT, TOP_TEXT, V_CENTER_TEXT, ' ...
              'BOTTOM_TEXT, BOTTOM_BASELINE_TEXT']);
% A name the library knows but does not take as a vertical alignment.
expect_error(@() set_property(t, 'VerticalAlignment', 'BASELINE_TEXT'), 'VOR2:InvalidConversion');
assert(t.VerticalAlignment, 'TOP_TEXT');
assert(t.HorizontalAlignment, 'RIGHT_TEXT');

assert(t.WidthAutoSize, 'Expanding');
t.TextDocumentWidth = int32(200);
w = t.TextDocumentWidth;
assert(isa(w, 'int32'));
assert(t.WidthAutoSize, 'Fixed');
expect_error(@() set_property(t, 'TextDocumentWidth', 10.5), 'VOR2:WrongType');
expect_error(@() set_property(t, 'WidthAutoSize', 'Shrinking'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: Fixed, Expanding');

t.Color = [1 0 0];
assert(t.Color, [1 0 0 1]);
t.Editable = true;
assert(t.Editable);
button = VOR2.RectNode([0 0 4 4]);
t.DeleteButtonNode = button;
assert(t.DeleteButtonNode == button);
t.DeleteButtonNode = [];
assert(isempty(t.DeleteButtonNode));
