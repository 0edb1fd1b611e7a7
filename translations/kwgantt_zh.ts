<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>program</name>
    <message>
        <source>%1 task has no start: the plan is shown scheduled</source>
        <translation>%1 个任务没有开始时间：按排程结果显示</translation>
    </message>
    <message>
        <source>%1 tasks have no start: the plan is shown scheduled</source>
        <translation>%1 个任务没有开始时间：按排程结果显示</translation>
    </message>
    <message>
        <source>%1 task starts before its predecessor finishes</source>
        <translation>%1 个任务在前置任务完成前开始</translation>
    </message>
    <message>
        <source>%1 tasks start before a predecessor finishes</source>
        <translation>%1 个任务在前置任务完成前开始</translation>
    </message>
    <message>
        <source>'kwgantt schedule %1' moves them</source>
        <translation>'kwgantt schedule %1' 会移动它们</translation>
    </message>
    <message>
        <source>%1: tasks wait for each other: %2</source>
        <translation>%1：任务互相等待：%2</translation>
    </message>
    <message>
        <source>remove one of these links with 'kwgantt edit %1 unlink TASK TASK'; nothing was changed</source>
        <translation>请用 'kwgantt edit %1 unlink TASK TASK' 删除其中一个链接；未作任何更改</translation>
    </message>
    <message>
        <source>%1: changed meanwhile by another program; nothing was written</source>
        <translation>%1：期间被其他程序更改；未写入任何内容</translation>
    </message>
    <message>
        <source>make the change again</source>
        <translation>请重新更改</translation>
    </message>
    <message>
        <source>%1: nothing can be scheduled in its working time; nothing was changed</source>
        <translation>%1：其工作时间内无法排程；未作任何更改</translation>
    </message>
    <message>
        <source>'kwgantt edit %1 calendar days Mon-Fri' and 'calendar hours 08:00-17:00' give it one</source>
        <translation>用 'kwgantt edit %1 calendar days Mon-Fri' 和 'calendar hours 08:00-17:00' 设定工作时间</translation>
    </message>
    <message>
        <source>%1: a workbook cannot be changed in place</source>
        <translation>%1：工作簿不能就地更改</translation>
    </message>
    <message>
        <source>-o PLAN.kwpx writes the plan as a package</source>
        <translation>-o PLAN.kwpx 把计划写成包</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1：无法创建文件夹</translation>
    </message>
    <message>
        <source>no help on '%1'</source>
        <translation>没有关于 '%1' 的帮助</translation>
    </message>
    <message>
        <source>'kwgantt help' lists all commands</source>
        <translation>'kwgantt help' 列出所有命令</translation>
    </message>
    <message>
        <source>did you mean '%1'?</source>
        <translation>您是指 '%1' 吗？</translation>
    </message>
    <message>
        <source>shown unless told otherwise</source>
        <translation>默认显示</translation>
    </message>
    <message>
        <source>kwpx   reads and writes: the whole document as a package</source>
        <translation>kwpx   读写：整个文档，作为包</translation>
    </message>
    <message>
        <source>csv    reads and writes: a row a task, titles in the first row, UTF-8</source>
        <translation>csv    读写：每个任务一行，首行为标题，UTF-8</translation>
    </message>
    <message>
        <source>xlsx   reads and writes: a workbook with a sheet each of tasks, resources and assignments</source>
        <translation>xlsx   读写：含任务、资源、分配三张表的工作簿</translation>
    </message>
    <message>
        <source>xls    reads and writes: the same, at most 65,536 rows</source>
        <translation>xls    读写：同上，最多 65,536 行</translation>
    </message>
    <message>
        <source>mspdi  reads and writes: project XML (.xml), as other planners exchange it</source>
        <translation>mspdi  读写：项目 XML (.xml)，与其他计划软件交换</translation>
    </message>
    <message>
        <source>json   writes</source>
        <translation>json   写</translation>
    </message>
    <message>
        <source>table  writes: text for people</source>
        <translation>table  写：供人阅读的文本</translation>
    </message>
    <message>
        <source>'kwgantt help formats' tells titles, dates and lengths</source>
        <translation>'kwgantt help formats' 说明标题、日期和工期</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Baseline finish</source>
        <translation>基线完成</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>&gt;Start by</source>
        <translation>&gt;开始偏差</translation>
    </message>
    <message>
        <source>&gt;Finish by</source>
        <translation>&gt;完成偏差</translation>
    </message>
    <message>
        <source>&gt;Cost by</source>
        <translation>&gt;成本偏差</translation>
    </message>
    <message>
        <source>no baseline: 'kwgantt baseline FILE set' remembers one</source>
        <translation>没有基线：'kwgantt baseline FILE set' 可记录一个</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>%1 summary task</source>
        <translation>%1 个摘要任务</translation>
    </message>
    <message>
        <source>%1 summary tasks</source>
        <translation>%1 个摘要任务</translation>
    </message>
    <message>
        <source>%1 level</source>
        <translation>%1 级</translation>
    </message>
    <message>
        <source>%1 levels</source>
        <translation>%1 级</translation>
    </message>
    <message>
        <source>%1 milestone</source>
        <translation>%1 个里程碑</translation>
    </message>
    <message>
        <source>%1 milestones</source>
        <translation>%1 个里程碑</translation>
    </message>
    <message>
        <source>%1 task begun</source>
        <translation>%1 个任务已开始</translation>
    </message>
    <message>
        <source>%1 tasks begun</source>
        <translation>%1 个任务已开始</translation>
    </message>
    <message>
        <source>%1 link</source>
        <translation>%1 个链接</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 个链接</translation>
    </message>
    <message>
        <source>%1 refused</source>
        <translation>%1 个被拒绝</translation>
    </message>
    <message>
        <source>%1 task without a start: scheduling places it</source>
        <translation>%1 个任务没有开始时间：排程时确定</translation>
    </message>
    <message>
        <source>%1 tasks without a start: scheduling places them</source>
        <translation>%1 个任务没有开始时间：排程时确定</translation>
    </message>
    <message>
        <source>%1 task starts before its predecessor finishes: scheduling moves it</source>
        <translation>%1 个任务在前置任务完成前开始：排程时移动</translation>
    </message>
    <message>
        <source>%1 tasks start before a predecessor finishes: scheduling moves them</source>
        <translation>%1 个任务在前置任务完成前开始：排程时移动</translation>
    </message>
    <message>
        <source>%1 finding</source>
        <translation>%1 个问题</translation>
    </message>
    <message>
        <source>%1 findings</source>
        <translation>%1 个问题</translation>
    </message>
    <message>
        <source>nothing to complain about</source>
        <translation>没有问题</translation>
    </message>
    <message>
        <source>there is no baseline to compare with</source>
        <translation>没有可比较的基线</translation>
    </message>
    <message>
        <source>%1 slips by %2 % of the baseline</source>
        <translation>%1 比基线推迟 %2 %</translation>
    </message>
    <message>
        <source>'%1' is no value for '%2'</source>
        <translation>'%1' 不是 '%2' 的有效值</translation>
    </message>
    <message>
        <source>write it as 2026-02-28 or '2026-02-28 TASK'</source>
        <translation>请写成 2026-02-28 或 '2026-02-28 TASK'</translation>
    </message>
    <message>
        <source>the project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>%1 finishes on %2, later than %3</source>
        <translation>%1 于 %2 完成，晚于 %3</translation>
    </message>
    <message>
        <source>the cost of %1 is more than %2</source>
        <translation>成本 %1 超过 %2</translation>
    </message>
    <message>
        <source>cannot be read as a plan</source>
        <translation>无法作为计划读取</translation>
    </message>
    <message>
        <source>%1 task</source>
        <translation>%1 个任务</translation>
    </message>
    <message>
        <source>%1 task too early</source>
        <translation>%1 个任务过早</translation>
    </message>
    <message>
        <source>%1 tasks too early</source>
        <translation>%1 个任务过早</translation>
    </message>
    <message>
        <source>%1 of %2 files are sound</source>
        <translation>%2 个文件中 %1 个完好</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>标识号</translation>
    </message>
    <message>
        <source>WBS</source>
        <translation>WBS</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Dur</source>
        <translation>工期</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成率</translation>
    </message>
    <message>
        <source>Slack</source>
        <translation>浮时</translation>
    </message>
    <message>
        <source>Start slack</source>
        <translation>开始浮时</translation>
    </message>
    <message>
        <source>Late start</source>
        <translation>最晚开始</translation>
    </message>
    <message>
        <source>Late finish</source>
        <translation>最晚完成</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>工时</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>成本</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>剩余成本</translation>
    </message>
    <message>
        <source>Base start</source>
        <translation>基线开始</translation>
    </message>
    <message>
        <source>Base finish</source>
        <translation>基线完成</translation>
    </message>
    <message>
        <source>Base cost</source>
        <translation>基线成本</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>%1: another program is writing it; nothing was changed</source>
        <translation>%1：另一程序正在写入；未作任何更改</translation>
    </message>
    <message>
        <source>try again</source>
        <translation>请再试一次</translation>
    </message>
    <message>
        <source>%1: not written: %2</source>
        <translation>%1：未写入：%2</translation>
    </message>
    <message>
        <source>%1 parts of it were not read and would be lost</source>
        <translation>有 %1 个部分未读取，写入会丢失</translation>
    </message>
    <message>
        <source>a part of it was not read and would be lost</source>
        <translation>有一部分未读取，写入会丢失</translation>
    </message>
    <message>
        <source>-o OUT leaves the file alone, --force writes it all the same</source>
        <translation>-o OUT 不动原文件，--force 强制写入</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1：无法读取：%2</translation>
    </message>
    <message>
        <source>%1: exists already and stays as it is</source>
        <translation>%1：已存在，保持不变</translation>
    </message>
    <message>
        <source>--force replaces it</source>
        <translation>--force 可替换</translation>
    </message>
    <message>
        <source>also written: %1</source>
        <translation>同时写入：%1</translation>
    </message>
    <message>
        <source>where shall the changed plan go?</source>
        <translation>更改后的计划写到哪里？</translation>
    </message>
    <message>
        <source>-i writes %1 itself, -o OUT another file; --dry-run only shows it</source>
        <translation>-i 写回 %1，-o OUT 写另一文件；--dry-run 只显示</translation>
    </message>
    <message>
        <source>%1: only a package or a CSV plan can be changed in place</source>
        <translation>%1：只有包或 CSV 计划可以就地更改</translation>
    </message>
    <message>
        <source>-o PLAN.kwpx writes it as a package</source>
        <translation>-o PLAN.kwpx 写成包</translation>
    </message>
    <message>
        <source>hint: %1</source>
        <translation>提示：%1</translation>
    </message>
    <message>
        <source>%1: %2 more like these</source>
        <translation>%1：另有 %2 个类似问题</translation>
    </message>
    <message>
        <source>-v lists more of them</source>
        <translation>-v 列出更多</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>标准输出：%1</translation>
    </message>
    <message>
        <source>%1: cannot be written: it is a folder</source>
        <translation>%1：无法写入：这是文件夹</translation>
    </message>
    <message>
        <source>give a file name to -o</source>
        <translation>请给 -o 一个文件名</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
    <message>
        <source>the folder must exist and have room; nothing was changed</source>
        <translation>文件夹须存在且有空间；未作任何更改</translation>
    </message>
    <message>
        <source>duration</source>
        <translation>工期</translation>
    </message>
    <message>
        <source>cost</source>
        <translation>成本</translation>
    </message>
    <message>
        <source>resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>predecessors</source>
        <translation>前置任务</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>hyperlinks</source>
        <translation>超链接</translation>
    </message>
    <message>
        <source>baseline start</source>
        <translation>基线开始</translation>
    </message>
    <message>
        <source>baseline finish</source>
        <translation>基线完成</translation>
    </message>
    <message>
        <source>baseline cost</source>
        <translation>基线成本</translation>
    </message>
    <message>
        <source>works</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>work</source>
        <translation>工时</translation>
    </message>
    <message>
        <source>material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>unit width</source>
        <translation>单位宽度</translation>
    </message>
    <message>
        <source>auto zoom</source>
        <translation>自动缩放</translation>
    </message>
    <message>
        <source>auto progress</source>
        <translation>自动进度</translation>
    </message>
    <message>
        <source>theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>baseline cost of the plan</source>
        <translation>计划的基线成本</translation>
    </message>
    <message>
        <source>start of the plan</source>
        <translation>计划开始</translation>
    </message>
    <message>
        <source>finish of the plan</source>
        <translation>计划完成</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>刻度</translation>
    </message>
    <message>
        <source>added</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>placed</source>
        <translation>换位</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>resource</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>order of the columns</source>
        <translation>列的顺序</translation>
    </message>
    <message>
        <source>columns now shown: %1</source>
        <translation>现在显示的列：%1</translation>
    </message>
    <message>
        <source>columns now hidden: %1</source>
        <translation>现在隐藏的列：%1</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>改名</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>在最高级别</translation>
    </message>
    <message>
        <source>below "%1"</source>
        <translation>在 "%1" 之下</translation>
    </message>
    <message>
        <source> (by the calendar)</source>
        <translation> （因日历）</translation>
    </message>
    <message>
        <source>slipped</source>
        <translation>推迟</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>finish %1</source>
        <translation>完成 %1</translation>
    </message>
    <message>
        <source>start %1</source>
        <translation>开始 %1</translation>
    </message>
    <message>
        <source>(the plan)</source>
        <translation>（计划）</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>no difference</source>
        <translation>没有差别</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>变化</translation>
    </message>
    <message>
        <source>%1 difference</source>
        <translation>%1 处差别</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 处差别</translation>
    </message>
    <message>
        <source>; </source>
        <translation>；</translation>
    </message>
    <message>
        <source>(unchanged)</source>
        <translation>（不变）</translation>
    </message>
    <message>
        <source>project finish</source>
        <translation>项目完成</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>%1: line %2</source>
        <translation>%1：第 %2 行</translation>
    </message>
    <message>
        <source>check the name and the permissions</source>
        <translation>请检查名称和权限</translation>
    </message>
    <message>
        <source>no edit is given</source>
        <translation>没有给出编辑</translation>
    </message>
    <message>
        <source>an edit and a script exclude each other</source>
        <translation>编辑与脚本不能同时使用</translation>
    </message>
    <message>
        <source>'kwgantt help edit' lists all edits</source>
        <translation>'kwgantt help edit' 列出所有编辑</translation>
    </message>
    <message>
        <source>'%1' takes back edits of the same script; what another call wrote is not kept</source>
        <translation>'%1' 只撤销同一脚本中的编辑；其他调用写入的内容不保留</translation>
    </message>
    <message>
        <source>-i --backup keeps the file before it as %1~</source>
        <translation>-i --backup 把原文件保留为 %1~</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>未写入任何内容</translation>
    </message>
    <message>
        <source>editing</source>
        <translation>正在编辑</translation>
    </message>
    <message>
        <source>%1 edit made</source>
        <translation>完成 %1 处编辑</translation>
    </message>
    <message>
        <source>%1 edits made</source>
        <translation>完成 %1 处编辑</translation>
    </message>
    <message>
        <source>'%1' is not a date</source>
        <translation>'%1' 不是日期</translation>
    </message>
    <message>
        <source>write it as 2026-02-28 or 2026-02-28T17:00</source>
        <translation>请写成 2026-02-28 或 2026-02-28T17:00</translation>
    </message>
    <message>
        <source>'%1' is not a duration</source>
        <translation>'%1' 不是工期</translation>
    </message>
    <message>
        <source>write it as 3d, 12h, 30min, 1.5w or 2mon</source>
        <translation>请写成 3d、12h、30min、1.5w 或 2mon</translation>
    </message>
    <message>
        <source>'%1' is not a percentage</source>
        <translation>'%1' 不是百分比</translation>
    </message>
    <message>
        <source>'%1' is not a whole number</source>
        <translation>'%1' 不是整数</translation>
    </message>
    <message>
        <source>'%1' is no row height</source>
        <translation>'%1' 不是行高</translation>
    </message>
    <message>
        <source>write a number of pixels</source>
        <translation>请写像素数</translation>
    </message>
    <message>
        <source>the quote %1 is never closed</source>
        <translation>引号 %1 没有结束</translation>
    </message>
    <message>
        <source>write a quote inside double quotes as \"</source>
        <translation>双引号内的引号请写成 \"</translation>
    </message>
    <message>
        <source>no field '%1'</source>
        <translation>没有字段 '%1'</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>可用的有 %1</translation>
    </message>
    <message>
        <source>'%1' needs a value</source>
        <translation>'%1' 需要一个值</translation>
    </message>
    <message>
        <source>write it as %1=VALUE</source>
        <translation>请写成 %1=VALUE</translation>
    </message>
    <message>
        <source>'%1' is no date</source>
        <translation>'%1' 不是日期</translation>
    </message>
    <message>
        <source>write it as 2026-12-25 or 2026-12-24..2026-12-31</source>
        <translation>请写成 2026-12-25 或 2026-12-24..2026-12-31</translation>
    </message>
    <message>
        <source>a date such as 2026-02-28</source>
        <translation>日期，如 2026-02-28</translation>
    </message>
    <message>
        <source>a number from 1 to 10,000</source>
        <translation>1 到 10,000 之间的数</translation>
    </message>
    <message>
        <source>a number from 0 to 1,000</source>
        <translation>0 到 1,000 之间的数</translation>
    </message>
    <message>
        <source>an amount such as 12000.50</source>
        <translation>金额，如 12000.50</translation>
    </message>
    <message>
        <source>'%1' are no weekdays</source>
        <translation>'%1' 不是星期</translation>
    </message>
    <message>
        <source>write it as Mon-Fri or Mon-Thu,Sat</source>
        <translation>请写成 Mon-Fri 或 Mon-Thu,Sat</translation>
    </message>
    <message>
        <source>write it as 08:00-12:00,13:00-17:00</source>
        <translation>请写成 08:00-12:00,13:00-17:00</translation>
    </message>
    <message>
        <source>write it as 2026-02-28</source>
        <translation>请写成 2026-02-28</translation>
    </message>
    <message>
        <source>possible: %1</source>
        <translation>可用：%1</translation>
    </message>
    <message>
        <source>'%1' is no value for a column</source>
        <translation>'%1' 不是列的有效值</translation>
    </message>
    <message>
        <source>write show, hide or a width in pixels</source>
        <translation>请写 show、hide 或以像素计的宽度</translation>
    </message>
    <message>
        <source>'resource add %1' makes it</source>
        <translation>'resource add %1' 可添加</translation>
    </message>
    <message>
        <source>write work or material</source>
        <translation>请写 work 或 material</translation>
    </message>
    <message>
        <source>write it as 50/h, 400/d, 8000/m, or 2.5 for a material</source>
        <translation>请写成 50/h、400/d、8000/m，材料写成 2.5</translation>
    </message>
    <message>
        <source>write it as 70/h</source>
        <translation>请写成 70/h</translation>
    </message>
    <message>
        <source>write it as 200%</source>
        <translation>请写成 200%</translation>
    </message>
    <message>
        <source>'resource set' changes it</source>
        <translation>'resource set' 可更改</translation>
    </message>
    <message>
        <source>'%1' are no units</source>
        <translation>'%1' 不是单位数</translation>
    </message>
    <message>
        <source>write 50% of the time, or a number of a material</source>
        <translation>请写时间的 50%，或材料的数量</translation>
    </message>
    <message>
        <source>'%1' means %2 % of '%3'</source>
        <translation>'%1' 表示 '%3' 的 %2 %</translation>
    </message>
    <message>
        <source>did you mean %1%?</source>
        <translation>您是指 %1% 吗？</translation>
    </message>
    <message>
        <source>assigned are: %1</source>
        <translation>已分配：%1</translation>
    </message>
    <message>
        <source>%1 is hidden below a collapsed summary</source>
        <translation>%1 隐藏在折叠的摘要任务之下</translation>
    </message>
    <message>
        <source>'expand %1' shows it</source>
        <translation>'expand %1' 可显示</translation>
    </message>
    <message>
        <source>'%1' is no count</source>
        <translation>'%1' 不是数量</translation>
    </message>
    <message>
        <source>write a whole number from 1</source>
        <translation>请写从 1 起的整数</translation>
    </message>
    <message>
        <source>'%1' is no direction</source>
        <translation>'%1' 不是方向</translation>
    </message>
    <message>
        <source>write up or down</source>
        <translation>请写 up 或 down</translation>
    </message>
    <message>
        <source>'%1' lies before the start of %2</source>
        <translation>'%1' 早于 %2 的开始时间</translation>
    </message>
    <message>
        <source>nothing to undo</source>
        <translation>没有可撤销的内容</translation>
    </message>
    <message>
        <source>undo takes back the edits before it</source>
        <translation>undo 撤销它之前的编辑</translation>
    </message>
    <message>
        <source>nothing to redo</source>
        <translation>没有可重做的内容</translation>
    </message>
    <message>
        <source>redo follows undo, with no other edit between them</source>
        <translation>redo 须紧跟 undo，中间没有其他编辑</translation>
    </message>
    <message>
        <source>a task at the end, beside the last one</source>
        <translation>在末尾添加任务，与最后一个同级</translation>
    </message>
    <message>
        <source>a task above TASK</source>
        <translation>在 TASK 上方添加任务</translation>
    </message>
    <message>
        <source>a task as the first one below TASK</source>
        <translation>在 TASK 之下添加第一个子任务</translation>
    </message>
    <message>
        <source>a collapsed summary goes with what is below it, the tasks below another one move up</source>
        <translation>折叠的摘要任务连同其下内容一起删除，否则其下任务上移</translation>
    </message>
    <message>
        <source>below the task before it</source>
        <translation>降到前一个任务之下</translation>
    </message>
    <message>
        <source>one level up; the tasks that follow it on its level go below it</source>
        <translation>升一级；同级的后续任务归到其下</translation>
    </message>
    <message>
        <source>among the tasks of its summary</source>
        <translation>在所属摘要任务的任务之间</translation>
    </message>
    <message>
        <source>shows what is below</source>
        <translation>显示其下内容</translation>
    </message>
    <message>
        <source>hides what is below</source>
        <translation>隐藏其下内容</translation>
    </message>
    <message>
        <source>dates push what waits for the task; the fields are listed below</source>
        <translation>日期会推动等待它的任务；字段见下</translation>
    </message>
    <message>
        <source>each one waits for the one before it</source>
        <translation>每个任务等待前一个</translation>
    </message>
    <message>
        <source>the links from each to the next; of one task, all its links</source>
        <translation>每个到下一个的链接；只有一个任务时为其全部链接</translation>
    </message>
    <message>
        <source>UNITS: 50% of the time, or a number of a material</source>
        <translation>UNITS：时间的 50%，或材料的数量</translation>
    </message>
    <message>
        <source>one resource, or all</source>
        <translation>一个资源，或全部</translation>
    </message>
    <message>
        <source>the assignments follow</source>
        <translation>分配随之更改</translation>
    </message>
    <message>
        <source>with its assignments</source>
        <translation>连同其分配</translation>
    </message>
    <message>
        <source>tasks keep their working time and move off the days off</source>
        <translation>任务保留工作时间并避开休息日</translation>
    </message>
    <message>
        <source>days off</source>
        <translation>休息日</translation>
    </message>
    <message>
        <source>days that work, whatever the week says</source>
        <translation>工作日，不论星期设置</translation>
    </message>
    <message>
        <source>the holiday or workday that holds the date</source>
        <translation>包含该日期的休息日或工作日</translation>
    </message>
    <message>
        <source>the options are listed below</source>
        <translation>选项见下</translation>
    </message>
    <message>
        <source>a column of the task table</source>
        <translation>任务表的一列</translation>
    </message>
    <message>
        <source>remembers dates and cost, of all tasks or of branches</source>
        <translation>记录全部任务或分支的日期和成本</translation>
    </message>
    <message>
        <source>moves every task behind its predecessors</source>
        <translation>把每个任务移到前置任务之后</translation>
    </message>
    <message>
        <source>the tasks with all that is below them</source>
        <translation>这些任务及其下全部内容</translation>
    </message>
    <message>
        <source>the same, and removes them</source>
        <translation>同上，并删除</translation>
    </message>
    <message>
        <source>above TASK, or at the end, with new IDs and names</source>
        <translation>在 TASK 上方或末尾，使用新的标识号和名称</translation>
    </message>
    <message>
        <source>the same as the last tasks below TASK; hidden when it is collapsed</source>
        <translation>同上，作为 TASK 之下的最后任务；折叠时隐藏</translation>
    </message>
    <message>
        <source>in a script: takes the last N edits above it back, of the 60 that are kept</source>
        <translation>脚本中：撤销上面最近 N 处编辑，最多保留 60 处</translation>
    </message>
    <message>
        <source>in a script: makes them again</source>
        <translation>脚本中：重做</translation>
    </message>
    <message>
        <source>'%1' needs more</source>
        <translation>'%1' 需要更多参数</translation>
    </message>
    <message>
        <source>write it as %1</source>
        <translation>请写成 %1</translation>
    </message>
    <message>
        <source>'%1' is one word too many for '%2'</source>
        <translation>'%1' 对 '%2' 来说多余</translation>
    </message>
    <message>
        <source>%1 is a summary now and loses its resource '%2'</source>
        <translation>%1 现为摘要任务，失去资源 '%2'</translation>
    </message>
    <message>
        <source>%1 loses its resource '%2'</source>
        <translation>%1 失去资源 '%2'</translation>
    </message>
    <message>
        <source>%1 is a summary now and loses its baseline</source>
        <translation>%1 现为摘要任务，失去基线</translation>
    </message>
    <message>
        <source>%1 does not wait for %2 any more: they would wait for each other</source>
        <translation>%1 不再等待 %2：否则会互相等待</translation>
    </message>
    <message>
        <source>unknown edit '%1'</source>
        <translation>未知的编辑 '%1'</translation>
    </message>
    <message>
        <source>did you mean '%1'? 'kwgantt help edit' lists all edits</source>
        <translation>您是指 '%1' 吗？'kwgantt help edit' 列出所有编辑</translation>
    </message>
    <message>
        <source>Edits:</source>
        <translation>编辑:</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>字段：%1</translation>
    </message>
    <message>
        <source>Options: %1</source>
        <translation>选项：%1</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>季度</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Workday</source>
        <translation>工作日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Task Name</source>
        <translation>任务名称</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>工期</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完成百分比</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Hyperlinks</source>
        <translation>超链接</translation>
    </message>
    <message>
        <source>Remaining Cost</source>
        <translation>剩余成本</translation>
    </message>
    <message>
        <source>Early Start</source>
        <translation>最早开始</translation>
    </message>
    <message>
        <source>Early Finish</source>
        <translation>最早完成</translation>
    </message>
    <message>
        <source>Late Start</source>
        <translation>最晚开始</translation>
    </message>
    <message>
        <source>Late Finish</source>
        <translation>最晚完成</translation>
    </message>
    <message>
        <source>Start Slack</source>
        <translation>开始浮动时间</translation>
    </message>
    <message>
        <source>Finish Slack</source>
        <translation>完成浮动时间</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>关键</translation>
    </message>
    <message>
        <source>Baseline Start</source>
        <translation>基线开始</translation>
    </message>
    <message>
        <source>Baseline Finish</source>
        <translation>基线完成</translation>
    </message>
    <message>
        <source>Baseline Cost</source>
        <translation>基线成本</translation>
    </message>
    <message>
        <source>Predecessors</source>
        <translation>前置任务</translation>
    </message>
    <message>
        <source>Resource Name</source>
        <translation>资源名称</translation>
    </message>
    <message>
        <source>Max Units</source>
        <translation>最大单位</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>费率</translation>
    </message>
    <message>
        <source>Overtime Rate</source>
        <translation>加班费率</translation>
    </message>
    <message>
        <source>Cost per Use</source>
        <translation>每次使用成本</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮件</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>spans</source>
        <translation>跨度</translation>
    </message>
    <message>
        <source>starts when</source>
        <translation>开始于</translation>
    </message>
    <message>
        <source>could start</source>
        <translation>可能开始</translation>
    </message>
    <message>
        <source>takes</source>
        <translation>需要</translation>
    </message>
    <message>
        <source>holds up</source>
        <translation>制约</translation>
    </message>
    <message>
        <source>%1% done</source>
        <translation>已完成 %1%</translation>
    </message>
    <message>
        <source>%1 finishes (%2)</source>
        <translation>%1 完成（%2）</translation>
    </message>
    <message>
        <source>, which its summary %1 waits for</source>
        <translation>，摘要任务 %1 等待它</translation>
    </message>
    <message>
        <source>; next working moment is %1</source>
        <translation>；下一个工作时刻为 %1</translation>
    </message>
    <message>
        <source>the project starts (%1)</source>
        <translation>项目开始（%1）</translation>
    </message>
    <message>
        <source>its own date says: %1</source>
        <translation>自身日期：%1</translation>
    </message>
    <message>
        <source>at any time: it waits for no other task</source>
        <translation>任何时候：不等待其他任务</translation>
    </message>
    <message>
        <source>%1 earlier: %2 finishes on %3</source>
        <translation>提前 %1：%2 于 %3 完成</translation>
    </message>
    <message>
        <source>no earlier: %1 drives it</source>
        <translation>不能提前：由 %1 决定</translation>
    </message>
    <message>
        <source>%1 drives it, too</source>
        <translation>%1 也起决定作用</translation>
    </message>
    <message>
        <source>%1 has %2 to spare</source>
        <translation>%1 有 %2 余量</translation>
    </message>
    <message>
        <source>no time: it is a milestone</source>
        <translation>不需时间：里程碑</translation>
    </message>
    <message>
        <source>%1 year</source>
        <translation>%1 年</translation>
    </message>
    <message>
        <source>%1 quarter</source>
        <translation>%1 个季度</translation>
    </message>
    <message>
        <source>%1 month</source>
        <translation>%1 个月</translation>
    </message>
    <message>
        <source>%1 working week</source>
        <translation>%1 个工作周</translation>
    </message>
    <message>
        <source>%1 working day</source>
        <translation>%1 个工作日</translation>
    </message>
    <message>
        <source>%1 working hour</source>
        <translation>%1 个工作小时</translation>
    </message>
    <message>
        <source>%1 working minute</source>
        <translation>%1 个工作分钟</translation>
    </message>
    <message>
        <source>%1 years</source>
        <translation>%1 年</translation>
    </message>
    <message>
        <source>%1 quarters</source>
        <translation>%1 个季度</translation>
    </message>
    <message>
        <source>%1 months</source>
        <translation>%1 个月</translation>
    </message>
    <message>
        <source>%1 working weeks</source>
        <translation>%1 个工作周</translation>
    </message>
    <message>
        <source>%1 working days</source>
        <translation>%1 个工作日</translation>
    </message>
    <message>
        <source>%1 working hours</source>
        <translation>%1 个工作小时</translation>
    </message>
    <message>
        <source>%1 working minutes</source>
        <translation>%1 个工作分钟</translation>
    </message>
    <message>
        <source>; days off count as well</source>
        <translation>；休息日计入</translation>
    </message>
    <message>
        <source>; %1 do not count</source>
        <translation>；%1 不计</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>weekend</source>
        <translation>周末</translation>
    </message>
    <message>
        <source>nothing: it holds no task</source>
        <translation>无：不含任务</translation>
    </message>
    <message>
        <source>%1 task right below it</source>
        <translation>其下直属 %1 个任务</translation>
    </message>
    <message>
        <source>%1 tasks right below it</source>
        <translation>其下直属 %1 个任务</translation>
    </message>
    <message>
        <source>%1; %2 is its first and its last</source>
        <translation>%1；%2 既是第一个也是最后一个</translation>
    </message>
    <message>
        <source>%1; from %2 to %3</source>
        <translation>%1；从 %2 到 %3</translation>
    </message>
    <message>
        <source>the plan's date is %1</source>
        <translation>计划日期为 %1</translation>
    </message>
    <message>
        <source>the plan's date is %1; %2 pushes it</source>
        <translation>计划日期为 %1；被 %2 推迟</translation>
    </message>
    <message>
        <source>yes: %1 below it is (slack %2)</source>
        <translation>是：其下 %1 为关键（浮动时间 %2）</translation>
    </message>
    <message>
        <source>no: %1 has the least to spare of the tasks below it, %2</source>
        <translation>否：其下任务中 %1 的余量最小，为 %2</translation>
    </message>
    <message>
        <source>yes: finishing later moves the project finish (slack %1)</source>
        <translation>是：推迟完成会推迟项目完成（浮动时间 %1）</translation>
    </message>
    <message>
        <source>no: it can finish up to %1 later (%2) without moving the project finish</source>
        <translation>否：最多可推迟 %1 完成（%2）而不影响项目完成</translation>
    </message>
    <message>
        <source>nothing: no task waits for it</source>
        <translation>无：没有任务等待它</translation>
    </message>
    <message>
        <source>; %1 more task waits for it</source>
        <translation>；另有 %1 个任务等待它</translation>
    </message>
    <message>
        <source>; %1 more tasks wait for it</source>
        <translation>；另有 %1 个任务等待它</translation>
    </message>
    <message>
        <source>Titles of tasks:</source>
        <translation>任务的标题:</translation>
    </message>
    <message>
        <source>Titles of resources:</source>
        <translation>资源的标题:</translation>
    </message>
    <message>
        <source>Titles of assignments:</source>
        <translation>分配的标题:</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>the task has no ID</source>
        <translation>任务没有标识号</translation>
    </message>
    <message>
        <source>ID %1 is that of row %2, too</source>
        <translation>标识号 %1 也属于第 %2 行</translation>
    </message>
    <message>
        <source>its summary %1 does not exist</source>
        <translation>其摘要任务 %1 不存在</translation>
    </message>
    <message>
        <source>it stands above its summary %1</source>
        <translation>它位于其摘要任务 %1 之上</translation>
    </message>
    <message>
        <source>its summary %1 does not name it</source>
        <translation>其摘要任务 %1 没有列出它</translation>
    </message>
    <message>
        <source>level %1 where the outline has %2</source>
        <translation>级别为 %1，而大纲为 %2</translation>
    </message>
    <message>
        <source>it names %1 twice as its subtask</source>
        <translation>它把 %1 重复列为子任务</translation>
    </message>
    <message>
        <source>its subtask %1 does not exist</source>
        <translation>其子任务 %1 不存在</translation>
    </message>
    <message>
        <source>its subtask %1 belongs to %2</source>
        <translation>其子任务 %1 属于 %2</translation>
    </message>
    <message>
        <source>it is hidden by %1, which is no collapsed summary</source>
        <translation>它被 %1 隐藏，而后者不是折叠的摘要任务</translation>
    </message>
    <message>
        <source>its predecessor %1 does not exist</source>
        <translation>其前置任务 %1 不存在</translation>
    </message>
    <message>
        <source>its successor %1 does not exist</source>
        <translation>其后续任务 %1 不存在</translation>
    </message>
    <message>
        <source>it is its own predecessor</source>
        <translation>它是自己的前置任务</translation>
    </message>
    <message>
        <source>it is its own successor</source>
        <translation>它是自己的后续任务</translation>
    </message>
    <message>
        <source>its predecessor %1 does not know of the link</source>
        <translation>其前置任务 %1 没有此链接</translation>
    </message>
    <message>
        <source>its successor %1 does not know of the link</source>
        <translation>其后续任务 %1 没有此链接</translation>
    </message>
    <message>
        <source>a summary with resources of its own</source>
        <translation>自带资源的摘要任务</translation>
    </message>
    <message>
        <source>its resource '%1' is not in the sheet</source>
        <translation>其资源 '%1' 不在资源表中</translation>
    </message>
    <message>
        <source>tasks wait for each other: %1</source>
        <translation>任务互相等待：%1</translation>
    </message>
    <message>
        <source>%1 row heights for %2 tasks</source>
        <translation>%2 个任务有 %1 个行高</translation>
    </message>
    <message>
        <source>its time zone %1 is not known on this machine: read in %2</source>
        <translation>本机没有其时区 %1：按 %2 读取</translation>
    </message>
    <message>
        <source>--tz ZONE names another one; the package tzdata brings them</source>
        <translation>--tz ZONE 指定另一时区；软件包 tzdata 提供时区</translation>
    </message>
    <message>
        <source>%1: in its own time zone, %2; --tz local shows it in that of this machine</source>
        <translation>%1：按自身时区 %2；--tz local 按本机时区显示</translation>
    </message>
    <message>
        <source>its tasks do not begin and end on working hours in %1, but do in %2</source>
        <translation>其任务在 %1 不在工作时间起止，而在 %2 是</translation>
    </message>
    <message>
        <source> and %1 more zones</source>
        <translation> 等另外 %1 个时区</translation>
    </message>
    <message>
        <source>written in another zone? Try --tz %1</source>
        <translation>在另一时区写成？请试 --tz %1</translation>
    </message>
    <message>
        <source>%1: a package brings its own calendar and resources</source>
        <translation>%1：包自带日历和资源</translation>
    </message>
    <message>
        <source>leave --calendar, --days, --hours, --holiday, --start, --resources and --assignments out</source>
        <translation>请去掉 --calendar、 --days、 --hours、 --holiday、 --start、 --resources 和 --assignments</translation>
    </message>
    <message>
        <source>%1: not a plan: %2</source>
        <translation>%1：不是计划：%2</translation>
    </message>
    <message>
        <source>its XML cannot be read</source>
        <translation>其 XML 无法读取</translation>
    </message>
    <message>
        <source>'kwgantt recover' lists autosave copies</source>
        <translation>'kwgantt recover' 列出自动保存的副本</translation>
    </message>
    <message>
        <source>give a file name</source>
        <translation>请给出文件名</translation>
    </message>
    <message>
        <source>no texts in the language '%1'</source>
        <translation>没有语言 '%1' 的文本</translation>
    </message>
    <message>
        <source>no time zone '%1' on this machine</source>
        <translation>本机没有时区 '%1'</translation>
    </message>
    <message>
        <source>names look like Europe/Berlin; the package tzdata brings them</source>
        <translation>名称形如 Europe/Berlin；由软件包 tzdata 提供</translation>
    </message>
    <message>
        <source>write it as 2026-02-28 or 2026-02-28T08:00</source>
        <translation>请写成 2026-02-28 或 2026-02-28T08:00</translation>
    </message>
    <message>
        <source>project finish %1 (unchanged)</source>
        <translation>项目完成 %1（不变）</translation>
    </message>
    <message>
        <source>project finish %1</source>
        <translation>项目完成 %1</translation>
    </message>
    <message>
        <source>%1 task moved</source>
        <translation>移动 %1 个任务</translation>
    </message>
    <message>
        <source>%1 tasks moved</source>
        <translation>移动 %1 个任务</translation>
    </message>
    <message>
        <source>its tasks moved</source>
        <translation>其任务移动了</translation>
    </message>
    <message>
        <source>by the edit</source>
        <translation>由此编辑引起</translation>
    </message>
    <message>
        <source>moved with its summary (%1)</source>
        <translation>随摘要任务移动（%1）</translation>
    </message>
    <message>
        <source>pushed by %1 "%2" (%3)</source>
        <translation>被 %1 "%2" 推迟（%3）</translation>
    </message>
    <message>
        <source>Because</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>nothing moves: every task starts at or after the end of its predecessors</source>
        <translation>没有移动：每个任务都在前置任务完成时或之后开始</translation>
    </message>
    <message>
        <source>%1 unchanged</source>
        <translation>%1 个不变</translation>
    </message>
    <message>
        <source>a whole number from 20 to 10,000</source>
        <translation>20 到 10,000 的整数</translation>
    </message>
    <message>
        <source>a whole number from 1 to 1,000</source>
        <translation>1 到 1,000 的整数</translation>
    </message>
    <message>
        <source>a whole number from 1 to 10,000</source>
        <translation>1 到 10,000 的整数</translation>
    </message>
    <message>
        <source>percent, from 10 to 400</source>
        <translation>百分比，10 到 400</translation>
    </message>
    <message>
        <source>a number from 0, such as 5%</source>
        <translation>从 0 起的数，如 5%</translation>
    </message>
    <message>
        <source>'kwgantt help %1' lists its options</source>
        <translation>'kwgantt help %1' 列出其选项</translation>
    </message>
    <message>
        <source>unknown option '%1'</source>
        <translation>未知选项 '%1'</translation>
    </message>
    <message>
        <source>option '%1' needs a value: %2</source>
        <translation>选项 '%1' 需要一个值：%2</translation>
    </message>
    <message>
        <source>option '%1' takes no value</source>
        <translation>选项 '%1' 不带值</translation>
    </message>
    <message>
        <source>standard input cannot be written back</source>
        <translation>无法写回标准输入</translation>
    </message>
    <message>
        <source>give a file name, or -o FILE</source>
        <translation>请给出文件名，或用 -o FILE</translation>
    </message>
    <message>
        <source>-i writes the plan itself; it goes with neither -o nor --csv, --json or --to</source>
        <translation>-i 写回计划本身；不能与 -o、 --csv、 --json 或 --to 同用</translation>
    </message>
    <message>
        <source>--backup keeps the file that -i writes</source>
        <translation>--backup 保留被 -i 覆盖的文件</translation>
    </message>
    <message>
        <source>add -i</source>
        <translation>请加上 -i</translation>
    </message>
    <message>
        <source>-i and --dry-run exclude each other</source>
        <translation>-i 与 --dry-run 不能同用</translation>
    </message>
    <message>
        <source>--portrait and --landscape exclude each other</source>
        <translation>--portrait 与 --landscape 不能同用</translation>
    </message>
    <message>
        <source>--fit and --zoom exclude each other</source>
        <translation>--fit 与 --zoom 不能同用</translation>
    </message>
    <message>
        <source>--before and --under exclude each other</source>
        <translation>--before 与 --under 不能同用</translation>
    </message>
    <message>
        <source>unknown command '%1'</source>
        <translation>未知命令 '%1'</translation>
    </message>
    <message>
        <source>did you mean '%1'? 'kwgantt help' lists all commands</source>
        <translation>您是指 '%1' 吗？'kwgantt help' 列出所有命令</translation>
    </message>
    <message>
        <source>'%1' does not go with '%2'</source>
        <translation>'%1' 不能用于 '%2'</translation>
    </message>
    <message>
        <source>'%1' needs more: %2</source>
        <translation>'%1' 需要更多参数：%2</translation>
    </message>
    <message>
        <source>standard output has no name that tells a format</source>
        <translation>标准输出没有能表明格式的名称</translation>
    </message>
    <message>
        <source>--to csv, json, mspdi or table tells it</source>
        <translation>用 --to csv、json、mspdi 或 table 指定</translation>
    </message>
    <message>
        <source>'%1' names no format that can be written</source>
        <translation>'%1' 不是可写入的格式</translation>
    </message>
    <message>
        <source>end it in .kwpx, .csv, .xlsx, .xls, .xml or .json</source>
        <translation>请以 .kwpx、.csv、.xlsx、.xls、.xml 或 .json 结尾</translation>
    </message>
    <message>
        <source>%1: written with %2</source>
        <translation>%1：已写入 %2</translation>
    </message>
    <message>
        <source>baseline set</source>
        <translation>已设置基线</translation>
    </message>
    <message>
        <source>baseline cleared</source>
        <translation>已清除基线</translation>
    </message>
    <message>
        <source>'%1' is nothing to do with a baseline</source>
        <translation>不能对基线执行 '%1'</translation>
    </message>
    <message>
        <source>write list, set or clear</source>
        <translation>请写 list、set 或 clear</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>副本</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存时间</translation>
    </message>
    <message>
        <source>&gt;Tasks</source>
        <translation>&gt;任务</translation>
    </message>
    <message>
        <source>First task</source>
        <translation>第一个任务</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>no autosave copies in %1</source>
        <translation>%1 中没有自动保存的副本</translation>
    </message>
    <message>
        <source>where shall the copy go?</source>
        <translation>副本写到哪里？</translation>
    </message>
    <message>
        <source>-o FILE.kwpx names the file</source>
        <translation>-o FILE.kwpx 指定文件</translation>
    </message>
    <message>
        <source>no autosave copy '%1' in %2</source>
        <translation>%2 中没有自动保存的副本 '%1'</translation>
    </message>
    <message>
        <source>'kwgantt recover' lists them</source>
        <translation>'kwgantt recover' 列出它们</translation>
    </message>
    <message>
        <source>copy branch</source>
        <translation>复制分支</translation>
    </message>
    <message>
        <source>%1 task copied</source>
        <translation>复制了 %1 个任务</translation>
    </message>
    <message>
        <source>%1 tasks copied</source>
        <translation>复制了 %1 个任务</translation>
    </message>
    <message>
        <source>no completion for '%1'</source>
        <translation>没有用于 '%1' 的补全</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>--calendar FILE names another calendar</source>
        <translation>--calendar FILE 指定另一日历</translation>
    </message>
    <message>
        <source>no working hour in the day: nothing can be scheduled</source>
        <translation>一天没有工作小时：无法排程</translation>
    </message>
    <message>
        <source>no working day in the week: nothing can be scheduled</source>
        <translation>一周没有工作日：无法排程</translation>
    </message>
    <message>
        <source>--days, --hours and --calendar give the working time</source>
        <translation>--days、 --hours 和 --calendar 设定工作时间</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>正在读取</translation>
    </message>
    <message>
        <source>building the tasks</source>
        <translation>正在建立任务</translation>
    </message>
    <message>
        <source>no working day from %1 on: nothing can be scheduled</source>
        <translation>从 %1 起没有工作日：无法排程</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是文件夹</translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1：无法写入</translation>
    </message>
    <message>
        <source>%1: not written, for the file cannot say all of it: %2</source>
        <translation>%1：未写入，因为文件不能表达全部内容：%2</translation>
    </message>
    <message>
        <source>scheduling</source>
        <translation>正在排程</translation>
    </message>
    <message>
        <source>late dates and slack</source>
        <translation>最晚日期和浮动时间</translation>
    </message>
    <message>
        <source>%1: %2 values of custom fields are passed over</source>
        <translation>%1：跳过 %2 个自定义字段的值</translation>
    </message>
    <message>
        <source>no column '%1' can be drawn</source>
        <translation>没有可绘制的列 '%1'</translation>
    </message>
    <message>
        <source>write it as 2026-02-01..2026-03-31</source>
        <translation>请写成 2026-02-01..2026-03-31</translation>
    </message>
    <message>
        <source>write it as 20mm or 20,15mm</source>
        <translation>请写成 20mm 或 20,15mm</translation>
    </message>
    <message>
        <source>write it as 3x2: three sheets across, two down</source>
        <translation>请写成 3x2：横向三张，纵向两张</translation>
    </message>
    <message>
        <source>%1 of %2 x %3 mm, %4 across and %5 down; the smallest text is %6 points high</source>
        <translation>%1，%2 x %3 毫米，横向 %4 张，纵向 %5 张；最小文字高 %6 点</translation>
    </message>
    <message>
        <source>%1 sheet</source>
        <translation>%1 张</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 张</translation>
    </message>
    <message>
        <source>drawing</source>
        <translation>正在绘制</translation>
    </message>
    <message>
        <source>where shall the picture go?</source>
        <translation>图写到哪里？</translation>
    </message>
    <message>
        <source>'%1' names no picture</source>
        <translation>'%1' 不是图的名称</translation>
    </message>
    <message>
        <source>-o OUT.pdf, OUT.png, OUT.svg or OUT.html; '-o -' with --to pdf|png|svg|html</source>
        <translation>-o OUT.pdf、OUT.png、OUT.svg 或 OUT.html；'-o -' 配合 --to pdf|png|svg|html</translation>
    </message>
    <message>
        <source>unknown column '%1'; there are %2</source>
        <translation>未知的列 '%1'；可用的有 %2</translation>
    </message>
    <message>
        <source>'%1' is no range; write it as 2026-01-05..2026-02-28</source>
        <translation>'%1' 不是范围；请写成 2026-01-05..2026-02-28</translation>
    </message>
    <message>
        <source>the bars end early: a greater --width or a coarser --scale shows the rest</source>
        <translation>条形未显示完：加大 --width 或用更粗的 --scale 可看到其余部分</translation>
    </message>
    <message>
        <source>! critical: a delay moves the finish</source>
        <translation>! 关键：延误会推迟完成</translation>
    </message>
    <message>
        <source>critical only from %1 on: %2 begins at its own date, not when another task ends</source>
        <translation>从 %1 起才关键：%2 按自身日期开始，而非随另一任务完成</translation>
    </message>
    <message>
        <source>time zone %1</source>
        <translation>时区 %1</translation>
    </message>
    <message>
        <source>length %1, all of it critical</source>
        <translation>工期 %1，全部关键</translation>
    </message>
    <message>
        <source>length %1, critical %2</source>
        <translation>工期 %1，关键 %2</translation>
    </message>
    <message>
        <source>cost %1</source>
        <translation>成本 %1</translation>
    </message>
    <message>
        <source>%1 holiday</source>
        <translation>%1 个休息日</translation>
    </message>
    <message>
        <source>%1 holidays</source>
        <translation>%1 个休息日</translation>
    </message>
    <message>
        <source>%1 extra working day</source>
        <translation>%1 个额外工作日</translation>
    </message>
    <message>
        <source>%1 extra working days</source>
        <translation>%1 个额外工作日</translation>
    </message>
    <message>
        <source>&gt;Max</source>
        <translation>&gt;最大</translation>
    </message>
    <message>
        <source>&gt;Rate</source>
        <translation>&gt;费率</translation>
    </message>
    <message>
        <source>&gt;Per use</source>
        <translation>&gt;每次</translation>
    </message>
    <message>
        <source>&gt;Work</source>
        <translation>&gt;工时</translation>
    </message>
    <message>
        <source>&gt;Done</source>
        <translation>&gt;完成率</translation>
    </message>
    <message>
        <source>&gt;Cost</source>
        <translation>&gt;成本</translation>
    </message>
    <message>
        <source>&gt;Spent</source>
        <translation>&gt;已用</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>! %1 has more than %2: %3</source>
        <translation>! %1 超过 %2：%3</translation>
    </message>
    <message>
        <source>no resources</source>
        <translation>没有资源</translation>
    </message>
    <message>
        <source>no task '%1'</source>
        <translation>没有任务 '%1'</translation>
    </message>
    <message>
        <source>TASK is a row number from 1 to %1, #ID, or a name</source>
        <translation>TASK 是 1 到 %1 的行号、#ID 或名称</translation>
    </message>
    <message>
        <source>'%1' may be any of %2 tasks</source>
        <translation>'%1' 可能是 %2 个任务之一</translation>
    </message>
    <message>
        <source>say which by its row number: %1</source>
        <translation>请用行号指明：%1</translation>
    </message>
    <message>
        <source>(%1 more task)</source>
        <translation>（另有 %1 个任务）</translation>
    </message>
    <message>
        <source>(%1 more tasks)</source>
        <translation>（另有 %1 个任务）</translation>
    </message>
    <message>
        <source>the task is its own predecessor</source>
        <translation>任务是自己的前置任务</translation>
    </message>
    <message>
        <source>predecessor %1 stands twice</source>
        <translation>前置任务 %1 重复</translation>
    </message>
    <message>
        <source>predecessor %1 lies below this summary, which ends with it</source>
        <translation>前置任务 %1 在此摘要任务之下，摘要任务随它结束</translation>
    </message>
    <message>
        <source>predecessor %1 is the summary that holds this task</source>
        <translation>前置任务 %1 是包含此任务的摘要任务</translation>
    </message>
    <message>
        <source>tasks would wait for each other: %1</source>
        <translation>任务会互相等待：%1</translation>
    </message>
    <message>
        <source>predecessor %1 does not exist</source>
        <translation>前置任务 %1 不存在</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>%1: not a plan: no title of the task sheet is known</source>
        <translation>%1：不是计划：任务表没有已知的标题</translation>
    </message>
    <message>
        <source>the first row holds titles such as %1</source>
        <translation>第一行含 %1 之类的标题</translation>
    </message>
    <message>
        <source>an .xls workbook is written with texts alone</source>
        <translation>.xls 工作簿只写文本</translation>
    </message>
    <message>
        <source>--sheets rich makes a difference to .xlsx</source>
        <translation>--sheets rich 只对 .xlsx 有作用</translation>
    </message>
    <message>
        <source>the end of an object is missing</source>
        <translation>缺少对象的结尾</translation>
    </message>
    <message>
        <source>a colon is missing behind a name</source>
        <translation>名称后缺少冒号</translation>
    </message>
    <message>
        <source>the end of a list is missing</source>
        <translation>缺少列表的结尾</translation>
    </message>
    <message>
        <source>a comma is missing between values</source>
        <translation>值之间缺少逗号</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>不是值</translation>
    </message>
    <message>
        <source>the text ends in a number</source>
        <translation>文本在数字中结束</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>不是数字</translation>
    </message>
    <message>
        <source>a backslash with nothing that it can mark</source>
        <translation>反斜杠后的字符无效</translation>
    </message>
    <message>
        <source>a text is no UTF-8</source>
        <translation>有文本不是 UTF-8</translation>
    </message>
    <message>
        <source>the closing quote of a text is missing</source>
        <translation>文本缺少结束引号</translation>
    </message>
    <message>
        <source>nothing stands behind a comma</source>
        <translation>逗号后没有内容</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>嵌套过深</translation>
    </message>
    <message>
        <source>more text stands behind the end</source>
        <translation>结尾之后还有文本</translation>
    </message>
    <message>
        <source>no JSON</source>
        <translation>不是 JSON</translation>
    </message>
    <message>
        <source>no hours</source>
        <translation>没有时间</translation>
    </message>
    <message>
        <source>calendar, %1</source>
        <translation>日历，%1</translation>
    </message>
    <message>
        <source>hours %1 are read as %2</source>
        <translation>时间 %1 读作 %2</translation>
    </message>
    <message>
        <source>every working day has the same hours</source>
        <translation>每个工作日的时间相同</translation>
    </message>
    <message>
        <source>'%1' is not known: passed over</source>
        <translation>'%1' 未知：跳过</translation>
    </message>
    <message>
        <source>known are %1</source>
        <translation>已知的有 %1</translation>
    </message>
    <message>
        <source>more than %1 exceptions</source>
        <translation>超过 %1 个例外</translation>
    </message>
    <message>
        <source>calendar, exception %1</source>
        <translation>日历，例外 %1</translation>
    </message>
    <message>
        <source>exception %1: 'hours' are no text such as "08:00-12:00"</source>
        <translation>例外 %1：'hours' 不是 "08:00-12:00" 之类的文本</translation>
    </message>
    <message>
        <source>exception %1: %2</source>
        <translation>例外 %1：%2</translation>
    </message>
    <message>
        <source>exception %1: '%2' to '%3' are not two dates in order</source>
        <translation>例外 %1：'%2' 到 '%3' 不是先后两个日期</translation>
    </message>
    <message>
        <source>calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>the hours %1 count as %2 whole hours a day</source>
        <translation>时间 %1 按每天 %2 个整小时计</translation>
    </message>
    <message>
        <source>use hours that begin and end on the hour for exact dates</source>
        <translation>要得到精确日期，请用整点起止的时间</translation>
    </message>
    <message>
        <source>a day of %1 minutes is counted as its hours say: %2 minutes</source>
        <translation>%1 分钟的一天按其时间计：%2 分钟</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>不是 JSON 对象</translation>
    </message>
    <message>
        <source>not JSON at byte %1: %2</source>
        <translation>第 %1 字节处不是 JSON：%2</translation>
    </message>
    <message>
        <source>'days' is no list of weekdays such as {"Mon": true}</source>
        <translation>'days' 不是 {"Mon": true} 之类的星期列表</translation>
    </message>
    <message>
        <source>'exceptions' is no list of dates</source>
        <translation>'exceptions' 不是日期列表</translation>
    </message>
    <message>
        <source>'%1' is not a weekday with its hours</source>
        <translation>'%1' 不是带时间的星期</translation>
    </message>
    <message>
        <source>'hours': %1</source>
        <translation>'hours': %1</translation>
    </message>
    <message>
        <source>'hours' are no text such as "08:00-12:00,13:00-17:00"</source>
        <translation>'hours' 不是 "08:00-12:00,13:00-17:00" 之类的文本</translation>
    </message>
    <message>
        <source>'start': '%1' is not a date</source>
        <translation>'start': '%1' 不是日期</translation>
    </message>
    <message>
        <source>'%1' is not from one time of day to another</source>
        <translation>'%1' 不是从一个时刻到另一个时刻</translation>
    </message>
    <message>
        <source>'%1' ends before it begins</source>
        <translation>'%1' 结束早于开始</translation>
    </message>
    <message>
        <source>'%1' is earlier than '%2' before it</source>
        <translation>'%1' 早于其前的 '%2'</translation>
    </message>
    <message>
        <source>'%1' overlaps '%2'</source>
        <translation>'%1' 与 '%2' 重叠</translation>
    </message>
    <message>
        <source>no working day</source>
        <translation>没有工作日</translation>
    </message>
</context>
<context>
    <name>help</name>
    <message>
        <source>schedules project plans and shows them in the terminal</source>
        <translation>在终端中排程并显示项目计划</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>a package (.kwpx), a workbook (.xlsx, .xls), project XML (.xml) or a CSV plan ('-' reads standard input): titles in the first row, in any order and case, such as ID, WBS, Level, Name, Start, Finish, Duration (3d 12h 30min 1.5w 2mon), Percent, Predecessors (joined by ;), Resources, Milestone, Notes. A calendar stands beside it as NAME.calendar.json or calendar.json, the resource sheet and the assignments as NAME.resources.csv and NAME.assignments.csv.</source>
        <translation>包 (.kwpx)、工作簿 (.xlsx, .xls)、项目 XML (.xml) 或 CSV 计划（'-' 读取标准输入）：首行为标题，顺序和大小写不限，如 ID、WBS、Level、Name、Start、Finish、Duration (3d 12h 30min 1.5w 2mon)、Percent、Predecessors（以 ; 分隔）、Resources、Milestone、Notes。日历放在旁边的 NAME.calendar.json 或 calendar.json，资源表和分配放在 NAME.resources.csv 和 NAME.assignments.csv。</translation>
    </message>
    <message>
        <source>the row number shown, #ID, or a name</source>
        <translation>显示的行号、#ID 或名称</translation>
    </message>
    <message>
        <source>Options of all commands</source>
        <translation>所有命令的选项</translation>
    </message>
    <message>
        <source>writes the result into FILE; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json); '-' is standard output</source>
        <translation>把结果写入 FILE；格式由文件名决定 (.kwpx, .csv, .xlsx, .xls, .xml, .json)；'-' 为标准输出</translation>
    </message>
    <message>
        <source>replaces a file that is there, and writes over one of which something was not read</source>
        <translation>替换已有文件，也覆盖有内容未读取的文件</translation>
    </message>
    <message>
        <source>says nothing but errors</source>
        <translation>只报告错误</translation>
    </message>
    <message>
        <source>lists all findings, not only the first</source>
        <translation>列出所有问题，而不只是开头几个</translation>
    </message>
    <message>
        <source>shows on standard error how far work that lasts is</source>
        <translation>在标准错误上显示耗时工作的进度</translation>
    </message>
    <message>
        <source>colours repeat what the text says</source>
        <translation>颜色只是重复文字的含义</translation>
    </message>
    <message>
        <source>plain characters only</source>
        <translation>只用普通字符</translation>
    </message>
    <message>
        <source>the language of texts and titles</source>
        <translation>文本和标题的语言</translation>
    </message>
    <message>
        <source>the time zone of dates, such as Europe/Berlin, or local for that of this machine; without it that of the package, else that of this machine</source>
        <translation>日期的时区，如 Europe/Berlin，或 local 表示本机时区；不给时取包的时区，否则取本机时区</translation>
    </message>
    <message>
        <source>takes this moment for the present one, such as 2026-02-28T08:00</source>
        <translation>把此时刻当作现在，如 2026-02-28T08:00</translation>
    </message>
    <message>
        <source>adds a record of the run to FILE</source>
        <translation>把运行记录追加到 FILE</translation>
    </message>
    <message>
        <source>the help on the command</source>
        <translation>该命令的帮助</translation>
    </message>
    <message>
        <source>the program's version</source>
        <translation>程序版本</translation>
    </message>
    <message>
        <source>Options of commands that read a plan</source>
        <translation>读取计划的命令的选项</translation>
    </message>
    <message>
        <source>data for other programs</source>
        <translation>供其他程序使用的数据</translation>
    </message>
    <message>
        <source>the format of what is printed</source>
        <translation>输出的格式</translation>
    </message>
    <message>
        <source>the format of FILE: kwpx, csv, xlsx, xls or mspdi; its content decides otherwise</source>
        <translation>FILE 的格式：kwpx、csv、xlsx、xls 或 mspdi；不给时由内容决定</translation>
    </message>
    <message>
        <source>the calendar of a plan that holds none</source>
        <translation>计划不含日历时使用的日历</translation>
    </message>
    <message>
        <source>the days that work, such as Mon-Fri</source>
        <translation>工作日，如 Mon-Fri</translation>
    </message>
    <message>
        <source>the hours of a day, such as 08:00-12:00,13:00-17:00</source>
        <translation>一天的时间，如 08:00-12:00,13:00-17:00</translation>
    </message>
    <message>
        <source>a date or dates off: 2026-12-24..2027-01-01</source>
        <translation>休息日期：2026-12-24..2027-01-01</translation>
    </message>
    <message>
        <source>where tasks without a start begin</source>
        <translation>没有开始时间的任务从何时开始</translation>
    </message>
    <message>
        <source>the resource sheet of a CSV plan</source>
        <translation>CSV 计划的资源表</translation>
    </message>
    <message>
        <source>the assignments of a CSV plan</source>
        <translation>CSV 计划的分配</translation>
    </message>
    <message>
        <source>the unit of slack (d: below half a tenth of a day counts as none)</source>
        <translation>浮动时间的单位（d：不足二十分之一天视为零）</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>退出码</translation>
    </message>
    <message>
        <source>done, and the answer is no: there were findings, something would move, two plans differ, a demand is not met</source>
        <translation>完成，但答案为否：有问题、有任务会移动、两个计划不同，或要求未满足</translation>
    </message>
    <message>
        <source>wrong use</source>
        <translation>用法错误</translation>
    </message>
    <message>
        <source>the input cannot be read</source>
        <translation>无法读取输入</translation>
    </message>
    <message>
        <source>the output cannot be written, was changed meanwhile, or would lose what was not read</source>
        <translation>无法写入输出、期间被更改，或会丢失未读取的内容</translation>
    </message>
    <message>
        <source>the plan cannot be scheduled</source>
        <translation>计划无法排程</translation>
    </message>
    <message>
        <source>the machine lacks something</source>
        <translation>本机缺少某些条件</translation>
    </message>
    <message>
        <source>a bug</source>
        <translation>程序缺陷</translation>
    </message>
    <message>
        <source>how far the plan is from its baseline</source>
        <translation>计划与基线相差多少</translation>
    </message>
    <message>
        <source>The baseline remembers dates and costs, of all tasks or of TASK with what is below it.</source>
        <translation>基线记录全部任务，或 TASK 及其下全部任务的日期和成本。</translation>
    </message>
    <message>
        <source>writes FILE itself, a package or a CSV plan, as 'kwgantt help edit' says (set, clear)</source>
        <translation>写回 FILE（包或 CSV 计划），见 'kwgantt help edit'（set、clear）</translation>
    </message>
    <message>
        <source>keeps the file as it was before as FILE~</source>
        <translation>把原文件保留为 FILE~</translation>
    </message>
    <message>
        <source>writes another file</source>
        <translation>写另一文件</translation>
    </message>
    <message>
        <source>shows the changed plan and writes nothing</source>
        <translation>显示更改后的计划，不写入任何内容</translation>
    </message>
    <message>
        <source>a workbook with values, widths, filters and outline groups</source>
        <translation>带值、列宽、筛选和大纲分组的工作簿</translation>
    </message>
    <message>
        <source>every field of every task, for other programs</source>
        <translation>每个任务的所有字段，供其他程序使用</translation>
    </message>
    <message>
        <source>for other programs</source>
        <translation>供其他程序使用</translation>
    </message>
    <message>
        <source>what 'show --columns' can show</source>
        <translation>'show --columns' 可显示的列</translation>
    </message>
    <message>
        <source>a script that completes commands, options, values and edits</source>
        <translation>补全命令、选项、值和编辑的脚本</translation>
    </message>
    <message>
        <source>Packages install the scripts. By hand:</source>
        <translation>软件包会安装脚本。手动安装：</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>writes a plan in another format</source>
        <translation>以另一格式写出计划</translation>
    </message>
    <message>
        <source>The input's format is found from its content, the output's from its name: .kwpx, .csv, .xlsx, .xls, .xml or .json. Tasks without a start are placed as 'kwgantt schedule' does.</source>
        <translation>输入格式由内容判断，输出格式由名称决定：.kwpx、.csv、.xlsx、.xls、.xml 或 .json。没有开始时间的任务按 'kwgantt schedule' 的方式安排。</translation>
    </message>
    <message>
        <source>A CSV plan holds tasks alone: its calendar, resources and assignments are written beside it, where they are found again.</source>
        <translation>CSV 计划只含任务：日历、资源和分配写在旁边，读取时会再找到。</translation>
    </message>
    <message>
        <source>A workbook has a sheet each of tasks, resources and assignments, its columns told by their titles; the calendar is written beside it, too. What a workbook's cells could not give is listed on standard error.</source>
        <translation>工作簿有任务、资源、分配各一张表，列以标题区分；日历也写在旁边。工作簿单元格中未能读出的内容列在标准错误上。</translation>
    </message>
    <message>
        <source>an .xlsx workbook in which every cell is a text (rich, the default: dates and numbers as values, widths, filters and outline groups)</source>
        <translation>.xlsx 工作簿的每个单元格都是文本（默认 rich：日期和数字为值，带列宽、筛选和大纲分组）</translation>
    </message>
    <message>
        <source>replaces OUT</source>
        <translation>替换 OUT</translation>
    </message>
    <message>
        <source>copies tasks from one plan into another</source>
        <translation>把任务从一个计划复制到另一个</translation>
    </message>
    <message>
        <source>Each TASK goes with all that is below it. The copies get new IDs and, where a name is taken, new names; links among them stay. Assignments stay behind: they belong to the other plan's resource sheet.</source>
        <translation>每个 TASK 连同其下全部内容。副本得到新的标识号，重名时得到新名称；它们之间的链接保留。分配不随之复制：它们属于原计划的资源表。</translation>
    </message>
    <message>
        <source>above this task of INTO</source>
        <translation>在 INTO 的此任务上方</translation>
    </message>
    <message>
        <source>as the last tasks below this one, expanded or collapsed; without either, at the end</source>
        <translation>作为此任务之下的最后任务，不论展开或折叠；两者都不给时在末尾</translation>
    </message>
    <message>
        <source>writes INTO itself, a package or a CSV plan, as 'kwgantt help edit' says</source>
        <translation>写回 INTO（包或 CSV 计划），见 'kwgantt help edit'</translation>
    </message>
    <message>
        <source>what is different between two versions of a plan</source>
        <translation>两个版本的计划有何不同</translation>
    </message>
    <message>
        <source>Tasks belong together by ID and name, then by a name that stands once, then by ID. Exit code 1 when anything is different; no difference means that the plans are alike in all that is saved but the widths of bars.</source>
        <translation>任务先按标识号和名称对应，再按唯一的名称，再按标识号。有差别时退出码为 1；没有差别表示除条形宽度外保存的内容全部相同。</translation>
    </message>
    <message>
        <source>only these, joined by commas: tasks, outline, names, dates, progress, cost, resources, links, texts, baseline, calendar, sheet, table, options</source>
        <translation>只比较这些，以逗号分隔：tasks、outline、names、dates、progress、cost、resources、links、texts、baseline、calendar、sheet、table、options</translation>
    </message>
    <message>
        <source>only one of the plans has the task</source>
        <translation>只有一个计划有此任务</translation>
    </message>
    <message>
        <source>another name, another summary</source>
        <translation>名称不同，摘要任务不同</translation>
    </message>
    <message>
        <source>it finishes later; its dates changed otherwise</source>
        <translation>完成推迟；日期有其他变化</translation>
    </message>
    <message>
        <source>duration, done, cost, resources, notes, predecessors, priority, baseline, hyperlinks; and of the plan its working time, resource sheet, columns and options</source>
        <translation>工期、完成率、成本、资源、备注、前置任务、优先级、基线、超链接；以及计划的工作时间、资源表、列和选项</translation>
    </message>
    <message>
        <source>changes a plan</source>
        <translation>更改计划</translation>
    </message>
    <message>
        <source>writes FILE itself, a package or a CSV plan; of a CSV plan the separator, the line ends, the mark at the beginning, all other columns and every cell that still holds stay as they are. Writers wait for each other</source>
        <translation>写回 FILE（包或 CSV 计划）；CSV 计划的分隔符、换行、开头标记、所有其他列和仍然成立的单元格保持原样。写入者互相等待</translation>
    </message>
    <message>
        <source>writes another file; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json)</source>
        <translation>写另一文件；格式由文件名决定 (.kwpx, .csv, .xlsx, .xls, .xml, .json)</translation>
    </message>
    <message>
        <source>with -i, tells every task that moved and what moved it</source>
        <translation>与 -i 同用时，列出每个移动了的任务及其原因</translation>
    </message>
    <message>
        <source>one edit a line ('-' reads standard input); a line that begins with # says nothing</source>
        <translation>每行一个编辑（'-' 读取标准输入）；以 # 开头的行不起作用</translation>
    </message>
    <message>
        <source>All options of 'kwgantt help show' go with it, too: they say how the plan is shown.</source>
        <translation>'kwgantt help show' 的所有选项也适用：它们决定计划如何显示。</translation>
    </message>
    <message>
        <source>All edits are made or none: when one fails, nothing is written and the message names its line. TASK is the row number shown, #ID, or a name. Words are separated by blanks; quotes hold one together, and between double quotes \n, \t, \" and \\ stand for a line break, a tab, a quote and a backslash.</source>
        <translation>编辑要么全部完成，要么都不做：有一个失败就不写入任何内容，消息会指出其行号。TASK 是显示的行号、#ID 或名称。词以空格分隔；引号使其成为一体，双引号内 \n、\t、\" 和 \\ 分别表示换行、制表符、引号和反斜杠。</translation>
    </message>
    <message>
        <source>why a task is when it is</source>
        <translation>任务为何在此时</translation>
    </message>
    <message>
        <source>Schedules the plan as 'kwgantt schedule' does and tells what drives the task's start, how long it takes and which days do not count, whether it is critical, and what it holds up. Nothing is written.</source>
        <translation>像 'kwgantt schedule' 那样排程，说明什么决定任务的开始、需要多久、哪些天不计、是否关键，以及它制约什么。不写入任何内容。</translation>
    </message>
    <message>
        <source>the earliest dates that the links allow</source>
        <translation>链接所允许的最早日期</translation>
    </message>
    <message>
        <source>what can be read and written</source>
        <translation>可以读写的格式</translation>
    </message>
    <message>
        <source>A format is found from the file's content when it is read, from its name when it is written.</source>
        <translation>读取时由文件内容判断格式，写入时由名称决定。</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>also 2026-3-2, 2.3.2026, 2 Mar 2026, March 2, 2026; a time may follow (2026-03-02T08:00, 2026-03-02 17:00)</source>
        <translation>也可写 2026-3-2、2.3.2026、2 Mar 2026、March 2, 2026；后面可带时间 (2026-03-02T08:00, 2026-03-02 17:00)</translation>
    </message>
    <message>
        <source>has the day first where another date of the column can be nothing else, else the month</source>
        <translation>若该列有日期只能是日在前，则日在前，否则月在前</translation>
    </message>
    <message>
        <source>a start is the beginning of its day, a finish the end</source>
        <translation>开始为当天之始，完成为当天之末</translation>
    </message>
    <message>
        <source>in a workbook days since 1900 or 1904, as the workbook says</source>
        <translation>在工作簿中为自 1900 或 1904 年起的天数，依工作簿而定</translation>
    </message>
    <message>
        <source>lengths; also w, mon, q, y; a number alone counts days</source>
        <translation>工期；也可用 w、mon、q、y；只写数字按天计</translation>
    </message>
    <message>
        <source>Predecessors of a CSV plan or a workbook are parted by semicolons: 7 is an ID where a CSV plan has these, else a row; #7 an ID, 1.2 an outline code, a name stands in quotes. Numbers of what is done are percent in a CSV plan.</source>
        <translation>CSV 计划或工作簿的前置任务以分号分隔：CSV 计划有标识号时 7 是标识号，否则是行号；#7 是标识号，1.2 是大纲编号，名称加引号。CSV 计划中完成情况的数字为百分比。</translation>
    </message>
    <message>
        <source>A package and project XML have no titles. The first row of a CSV plan and of each sheet of a workbook has them, in any case, with blanks and signs anywhere, in any order; columns with other titles are told and not read.</source>
        <translation>包和项目 XML 没有标题。CSV 计划和工作簿每张表的首行为标题，大小写和顺序不限，其中可有空格和符号；其他标题的列会指出但不读取。</translation>
    </message>
    <message>
        <source>the commands, or one of them with its options</source>
        <translation>所有命令，或其中一个及其选项</translation>
    </message>
    <message>
        <source>writes the manual pages into FOLDER instead</source>
        <translation>改为把手册页写入 FOLDER</translation>
    </message>
    <message>
        <source>reads and checks plans and sums them up</source>
        <translation>读取、检查并汇总计划</translation>
    </message>
    <message>
        <source>What is wrong but can be lived with is told on standard error; a file that cannot be read as a plan gives exit code 3, one whose working time lets nothing be scheduled 5. Of a package it checks what must hold: IDs, outline, links, row heights, assignments. 'kwgantt check FILE...' does the same and gives exit code 1 when anything was found, or when a task starts before a predecessor finishes: exit code 0 and no finding mean that the plan is what the file says. Several files have a line each and a sum; the exit code is the greatest. With -q only what failed is told.</source>
        <translation>可容忍的问题写到标准错误；无法作为计划读取的文件得退出码 3，工作时间内无法排程的得 5。对包检查必须成立的内容：标识号、大纲、链接、行高、分配。'kwgantt check FILE...' 做同样的检查，若发现问题或有任务在前置任务完成前开始则得退出码 1：退出码 0 且没有问题，表示计划与文件所述一致。多个文件各占一行并有汇总；退出码取最大者。用 -q 只列出未通过的。</translation>
    </message>
    <message>
        <source>exit code 1 when anything was found</source>
        <translation>发现问题时退出码为 1</translation>
    </message>
    <message>
        <source>the summary and all findings for other programs</source>
        <translation>汇总和所有问题，供其他程序使用</translation>
    </message>
    <message>
        <source>Demands, which the plan meets or gives exit code 1</source>
        <translation>计划须满足的要求，否则退出码为 1</translation>
    </message>
    <message>
        <source>the project, or TASK, finishes on that date at the latest</source>
        <translation>项目或 TASK 最迟于该日期完成</translation>
    </message>
    <message>
        <source>it costs no more</source>
        <translation>成本不超过此数</translation>
    </message>
    <message>
        <source>no critical task finishes later than in the baseline by more than that much of the baseline's length</source>
        <translation>没有关键任务比基线晚完成超过基线工期的此百分比</translation>
    </message>
    <message>
        <source>an empty plan as .kwpx or .csv</source>
        <translation>空计划，.kwpx 或 .csv</translation>
    </message>
    <message>
        <source>a small plan with links and resources, from next Monday on</source>
        <translation>带链接和资源的小计划，从下周一开始</translation>
    </message>
    <message>
        <source>lists the autosave copies</source>
        <translation>列出自动保存的副本</translation>
    </message>
    <message>
        <source>COPY is a number of the list or a file name. The copy is read before it is written.</source>
        <translation>COPY 是列表中的编号或文件名。写出之前会先读取副本。</translation>
    </message>
    <message>
        <source>draws the chart</source>
        <translation>绘制甘特图</translation>
    </message>
    <message>
        <source>A PDF is cut into sheets as the print setup of a package says; a plan that brings none is fitted to sheets of A4 that can be read. An image and an SVG hold the whole plan in one; a page (.html) folds, zooms, finds and follows links in a browser. '-o -' with --to pdf|png|svg|html writes to standard output. Collapsed tasks stay hidden, dates are those of the file.</source>
        <translation>PDF 按包的打印设置分页；没有设置的计划缩放到可读的 A4 页。图像和 SVG 把整个计划放在一张图中；网页 (.html) 可在浏览器中折叠、缩放、查找和跟随链接。'-o -' 配合 --to pdf|png|svg|html 写到标准输出。折叠的任务保持隐藏，日期为文件中的日期。</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>A4, A3, LETTER or a size such as 297x210mm</source>
        <translation>A4、A3、LETTER 或 297x210mm 之类的尺寸</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>across</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>all of them (20mm), or two of them (20mm,15mm)</source>
        <translation>全部 (20mm)，或两个 (20mm,15mm)</translation>
    </message>
    <message>
        <source>as many sheets across and down</source>
        <translation>横向和纵向的页数</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>how many sheets and how small the text; nothing is written</source>
        <translation>多少页、文字多小；不写入任何内容</translation>
    </message>
    <message>
        <source>marks for folding a large sheet</source>
        <translation>大幅纸的折叠标记</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>above the chart</source>
        <translation>在图上方</translation>
    </message>
    <message>
        <source>at the top of each sheet, with &amp;[Page] &amp;[Pages] &amp;[Date] &amp;[File] &amp;[Title]</source>
        <translation>每页顶部，可用 &amp;[Page] &amp;[Pages] &amp;[Date] &amp;[File] &amp;[Title]</translation>
    </message>
    <message>
        <source>at the bottom of each sheet, with the same</source>
        <translation>每页底部，同上</translation>
    </message>
    <message>
        <source>the font of all texts</source>
        <translation>所有文字的字体</translation>
    </message>
    <message>
        <source>how dates are written</source>
        <translation>日期的写法</translation>
    </message>
    <message>
        <source>what stands beside the bars</source>
        <translation>条形旁显示什么</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图</translation>
    </message>
    <message>
        <source>the colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>pixels of an image for one of the chart</source>
        <translation>图中一像素对应图像的像素数</translation>
    </message>
    <message>
        <source>leaves out today, baseline, slack, critical, links, legend, repeat or background (the shades behind the bars), joined by commas</source>
        <translation>略去 today、baseline、slack、critical、links、legend、repeat 或 background（条形背后的底纹），以逗号分隔</translation>
    </message>
    <message>
        <source>What is drawn</source>
        <translation>绘制内容</translation>
    </message>
    <message>
        <source>columns by their keys, joined by commas; 'kwgantt columns' lists them</source>
        <translation>以逗号分隔的列名；'kwgantt columns' 列出它们</translation>
    </message>
    <message>
        <source>only this task with all that is below it</source>
        <translation>只绘此任务及其下全部内容</translation>
    </message>
    <message>
        <source>only critical tasks and their summaries</source>
        <translation>只显示关键任务及其摘要任务</translation>
    </message>
    <message>
        <source>only tasks down to this outline level</source>
        <translation>只显示到此大纲级别的任务</translation>
    </message>
    <message>
        <source>only these dates</source>
        <translation>只含这些日期</translation>
    </message>
    <message>
        <source>the tasks' dates and one unit around</source>
        <translation>任务的日期及前后各一个单位</translation>
    </message>
    <message>
        <source>auto, hour, day, week, month, quarter or year</source>
        <translation>auto、hour、day、week、month、quarter 或 year</translation>
    </message>
    <message>
        <source>pixels of a unit</source>
        <translation>一个单位的像素数</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH sets the date that is written into the file and the line of today, --now that line alone.</source>
        <translation>SOURCE_DATE_EPOCH 设定写入文件的日期和今天的线，--now 只设定该线。</translation>
    </message>
    <message>
        <source>A task keeps its start when it can: it is only moved later, to the end of the predecessor that finishes last, never earlier. A task without a start begins at the project's start. Prints the plan; what moved is summed up on standard error. Tasks that wait for each other in a ring of links give exit code 5.</source>
        <translation>任务尽量保持原开始时间：只会后移到最晚完成的前置任务结束处，从不前移。没有开始时间的任务从项目开始处开始。输出计划；移动情况汇总在标准错误上。任务因链接成环而互相等待时得退出码 5。</translation>
    </message>
    <message>
        <source>every task begins at the project's start, whatever the file says, and is moved from there: the earliest dates that the links allow</source>
        <translation>不论文件如何，每个任务从项目开始处起排：链接所允许的最早日期</translation>
    </message>
    <message>
        <source>what would move, and because of what; nothing is written</source>
        <translation>哪些会移动及原因；不写入任何内容</translation>
    </message>
    <message>
        <source>the same, and exit code 1 when anything would move or was found</source>
        <translation>同上，若有移动或发现问题则退出码为 1</translation>
    </message>
    <message>
        <source>writes the new dates into FILE, a package or a CSV plan, and leaves everything else as it is: of a CSV plan the separator, the line ends, the mark at the beginning and all other columns</source>
        <translation>把新日期写入 FILE（包或 CSV 计划），其余保持原样：CSV 计划的分隔符、换行、开头标记和所有其他列</translation>
    </message>
    <message>
        <source>writes the scheduled plan; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json)</source>
        <translation>写入排程后的计划；格式由文件名决定 (.kwpx, .csv, .xlsx, .xls, .xml, .json)</translation>
    </message>
    <message>
        <source>the unit of slack</source>
        <translation>浮动时间的单位</translation>
    </message>
    <message>
        <source>All options of 'kwgantt help show' go with it, too.</source>
        <translation>'kwgantt help show' 的所有选项也适用。</translation>
    </message>
    <message>
        <source>the plan as a table with bars</source>
        <translation>以带条形的表格显示计划</translation>
    </message>
    <message>
        <source>The dates are those of the file; a plan with tasks that have no start is shown scheduled.</source>
        <translation>日期为文件中的日期；含无开始时间任务的计划按排程结果显示。</translation>
    </message>
    <message>
        <source>columns of the terminal (found out otherwise, 100 in a pipe)</source>
        <translation>终端的列数（默认自动检测，管道中为 100）</translation>
    </message>
    <message>
        <source>only these dates on the bars</source>
        <translation>条形只含这些日期</translation>
    </message>
    <message>
        <source>collapsed tasks, too</source>
        <translation>也显示折叠的任务</translation>
    </message>
    <message>
        <source>the resource sheet instead: work, cost, and the days on which somebody has too much to do (--resources=FILE reads the sheet of a CSV plan from FILE)</source>
        <translation>改为显示资源表：工时、成本，以及有人过度分配的日子（--resources=FILE 从 FILE 读取 CSV 计划的资源表）</translation>
    </message>
    <message>
        <source>the table alone</source>
        <translation>只显示表格</translation>
    </message>
    <message>
        <source>the table alone, without title, legend and cut names, for other programs</source>
        <translation>只显示表格，不含标题、图例和截短的名称，供其他程序使用</translation>
    </message>
</context>
<context>
    <name>library</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>it is no ZIP file</source>
        <translation>不是 ZIP 文件</translation>
    </message>
    <message>
        <source>its parts contradict each other</source>
        <translation>其各部分互相矛盾</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>过早结束</translation>
    </message>
    <message>
        <source>the bytes do not have their checksum (CRC)</source>
        <translation>字节与校验和 (CRC) 不符</translation>
    </message>
    <message>
        <source>the packed bytes are damaged</source>
        <translation>压缩的字节已损坏</translation>
    </message>
    <message>
        <source>the way it is packed is not known</source>
        <translation>不认识其压缩方式</translation>
    </message>
    <message>
        <source>it is encrypted</source>
        <translation>已加密</translation>
    </message>
    <message>
        <source>it is one of several parts</source>
        <translation>只是多个部分之一</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有该文件或文件夹</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>no file can be made in the folder</source>
        <translation>无法在该文件夹中创建文件</translation>
    </message>
    <message>
        <source>the new file cannot take its place</source>
        <translation>新文件无法取代它</translation>
    </message>
    <message>
        <source>the archive is cut off at byte %1: the list of its entries is missing</source>
        <translation>压缩包在第 %1 字节处被截断：缺少条目列表</translation>
    </message>
    <message>
        <source>no archive: %1</source>
        <translation>不是压缩包：%1</translation>
    </message>
    <message>
        <source>there are too many entries</source>
        <translation>条目过多</translation>
    </message>
    <message>
        <source>an entry cannot be read</source>
        <translation>有条目无法读取</translation>
    </message>
    <message>
        <source>the entry is encrypted</source>
        <translation>条目已加密</translation>
    </message>
    <message>
        <source>the entry is packed in an unknown way</source>
        <translation>条目以未知方式压缩</translation>
    </message>
    <message>
        <source>the entry is neither a plain file nor a plain folder</source>
        <translation>条目既非普通文件也非普通文件夹</translation>
    </message>
    <message>
        <source>a name holds a control character</source>
        <translation>名称含控制字符</translation>
    </message>
    <message>
        <source>the name cannot be used on this machine</source>
        <translation>此名称不能在本机使用</translation>
    </message>
    <message>
        <source>something stands there already</source>
        <translation>该处已有内容</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>无法创建其文件夹</translation>
    </message>
    <message>
        <source>the entry does not have the size it declares</source>
        <translation>条目大小与声明不符</translation>
    </message>
    <message>
        <source>neither a plain file nor a plain folder</source>
        <translation>既非普通文件也非普通文件夹</translation>
    </message>
    <message>
        <source>a folder cannot be read: %1</source>
        <translation>无法读取文件夹：%1</translation>
    </message>
    <message>
        <source>there is nothing to pack</source>
        <translation>没有可打包的内容</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有这个文件夹</translation>
    </message>
    <message>
        <source>the archive lies in the folder that it packs</source>
        <translation>归档文件位于它要打包的文件夹中</translation>
    </message>
    <message>
        <source>there is no such archive</source>
        <translation>没有这个压缩包</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>to do</source>
        <translation>待完成</translation>
    </message>
    <message>
        <source>critical</source>
        <translation>关键</translation>
    </message>
    <message>
        <source>slack</source>
        <translation>浮动时间</translation>
    </message>
    <message>
        <source>baseline</source>
        <translation>基线</translation>
    </message>
    <message>
        <source>summary</source>
        <translation>摘要任务</translation>
    </message>
    <message>
        <source>milestone</source>
        <translation>里程碑</translation>
    </message>
    <message>
        <source>link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>day off</source>
        <translation>休息日</translation>
    </message>
    <message>
        <source>today</source>
        <translation>取今天</translation>
    </message>
    <message>
        <source>%1 of %2 (%3)</source>
        <translation>%1 / %2（%3）</translation>
    </message>
    <message>
        <source>no task has the ID %1</source>
        <translation>没有标识号为 %1 的任务</translation>
    </message>
    <message>
        <source>no task is named</source>
        <translation>没有指明任务</translation>
    </message>
    <message>
        <source>name at least one</source>
        <translation>请至少指明一个</translation>
    </message>
    <message>
        <source>%1 has no task before it on its level</source>
        <translation>%1 在同一级别上前面没有任务</translation>
    </message>
    <message>
        <source>%1 has no task after it on its level</source>
        <translation>%1 在同一级别上后面没有任务</translation>
    </message>
    <message>
        <source>a task moves among the tasks of its summary</source>
        <translation>任务只在所属摘要任务之内移动</translation>
    </message>
    <message>
        <source>%1 is at the top level already</source>
        <translation>%1 已在最高级别</translation>
    </message>
    <message>
        <source>only a task below a summary can move one level up</source>
        <translation>只有摘要任务之下的任务才能升一级</translation>
    </message>
    <message>
        <source>%1 is no summary</source>
        <translation>%1 不是摘要任务</translation>
    </message>
    <message>
        <source>only a task with tasks below it can be collapsed</source>
        <translation>只有带子任务的任务才能折叠</translation>
    </message>
    <message>
        <source>%1 is a summary: that comes from the tasks below it</source>
        <translation>%1 是摘要任务：该值由其子任务得出</translation>
    </message>
    <message>
        <source>set it on those</source>
        <translation>请在子任务上设置</translation>
    </message>
    <message>
        <source>%1 cannot start so late</source>
        <translation>%1 不能这么晚开始</translation>
    </message>
    <message>
        <source>dates reach up to the year 2105</source>
        <translation>日期最晚到 2105 年</translation>
    </message>
    <message>
        <source>the finish lies before the start of %1</source>
        <translation>完成时间早于 %1 的开始时间</translation>
    </message>
    <message>
        <source>set start first; it takes the finish along</source>
        <translation>请先设置开始时间，完成时间会随之移动</translation>
    </message>
    <message>
        <source>%1 has no start</source>
        <translation>%1 没有开始时间</translation>
    </message>
    <message>
        <source>set its start first</source>
        <translation>请先设置其开始时间</translation>
    </message>
    <message>
        <source>that is no length for %1</source>
        <translation>这不是 %1 的工期</translation>
    </message>
    <message>
        <source>write a number from 0 to a hundred years</source>
        <translation>请写 0 到一百年之间的数</translation>
    </message>
    <message>
        <source>that is no unit of time</source>
        <translation>这不是时间单位</translation>
    </message>
    <message>
        <source>from years to minutes</source>
        <translation>从年到分钟</translation>
    </message>
    <message>
        <source>that is not a percentage</source>
        <translation>这不是百分比</translation>
    </message>
    <message>
        <source>write a number from 0 to 100</source>
        <translation>请写 0 到 100 之间的数</translation>
    </message>
    <message>
        <source>'%1' is no amount</source>
        <translation>'%1' 不是金额</translation>
    </message>
    <message>
        <source>write a number</source>
        <translation>请写一个数</translation>
    </message>
    <message>
        <source>that is no row height</source>
        <translation>这不是行高</translation>
    </message>
    <message>
        <source>write a number of pixels up to 10000</source>
        <translation>请写不超过 10000 的像素数</translation>
    </message>
    <message>
        <source>%1: the task is its own predecessor</source>
        <translation>%1：任务是自己的前置任务</translation>
    </message>
    <message>
        <source>%1: predecessor %2 stands twice</source>
        <translation>%1：前置任务 %2 重复</translation>
    </message>
    <message>
        <source>%1: predecessor %2 lies below this summary, which ends with it</source>
        <translation>%1：前置任务 %2 在此摘要任务之下，摘要任务随它结束</translation>
    </message>
    <message>
        <source>link the tasks below the summary</source>
        <translation>请链接摘要任务之下的任务</translation>
    </message>
    <message>
        <source>%1: predecessor %2 is the summary that holds this task</source>
        <translation>%1：前置任务 %2 是包含此任务的摘要任务</translation>
    </message>
    <message>
        <source>%1: tasks would wait for each other: %2</source>
        <translation>%1：任务会互相等待：%2</translation>
    </message>
    <message>
        <source>remove one of these links</source>
        <translation>请删除其中一个链接</translation>
    </message>
    <message>
        <source>%1 does not wait for %2</source>
        <translation>%1 并不等待 %2</translation>
    </message>
    <message>
        <source>no resource '%1'</source>
        <translation>没有资源 '%1'</translation>
    </message>
    <message>
        <source>a resource needs a name</source>
        <translation>资源需要名称</translation>
    </message>
    <message>
        <source>there is a resource '%1' already</source>
        <translation>已有资源 '%1'</translation>
    </message>
    <message>
        <source>%1 is a summary</source>
        <translation>%1 是摘要任务</translation>
    </message>
    <message>
        <source>assign resources to the tasks below it</source>
        <translation>请把资源分配给其子任务</translation>
    </message>
    <message>
        <source>'%1' is not assigned to %2</source>
        <translation>'%1' 未分配给 %2</translation>
    </message>
    <message>
        <source>these are no units</source>
        <translation>这不是单位数</translation>
    </message>
    <message>
        <source>50% of the time, or a number of a material</source>
        <translation>时间的 50%，或材料的数量</translation>
    </message>
    <message>
        <source>that is no unit of a rate</source>
        <translation>这不是费率的单位</translation>
    </message>
    <message>
        <source>from minutes to months</source>
        <translation>从分钟到月</translation>
    </message>
    <message>
        <source>no working time is left</source>
        <translation>没有剩下工作时间</translation>
    </message>
    <message>
        <source>at least one weekday and one hour must work</source>
        <translation>至少要有一个工作日和一个工作小时</translation>
    </message>
    <message>
        <source>these are no working hours</source>
        <translation>这不是工作时间</translation>
    </message>
    <message>
        <source>intervals in order that do not overlap, each ending after it begins</source>
        <translation>按顺序、互不重叠、先开始后结束的时段</translation>
    </message>
    <message>
        <source>these are not two dates in order</source>
        <translation>这不是先后两个日期</translation>
    </message>
    <message>
        <source>no holiday or workday holds %1</source>
        <translation>没有包含 %1 的休息日或工作日</translation>
    </message>
    <message>
        <source>no column '%1'</source>
        <translation>没有列 '%1'</translation>
    </message>
    <message>
        <source>that is no width of a column</source>
        <translation>这不是列宽</translation>
    </message>
    <message>
        <source>nothing to paste</source>
        <translation>没有可粘贴的内容</translation>
    </message>
    <message>
        <source>copy or cut tasks first</source>
        <translation>请先复制或剪切任务</translation>
    </message>
    <message>
        <source>the tasks cannot be copied</source>
        <translation>无法复制这些任务</translation>
    </message>
    <message>
        <source>cancelled: the plan is as it was</source>
        <translation>已取消：计划保持原样</translation>
    </message>
    <message>
        <source>holds no workbook</source>
        <translation>不含工作簿</translation>
    </message>
    <message>
        <source>the stream of the workbook is damaged</source>
        <translation>工作簿的数据流已损坏</translation>
    </message>
    <message>
        <source>the sheet "%1" lies where another does</source>
        <translation>工作表 "%1" 与另一个重叠</translation>
    </message>
    <message>
        <source>nothing imported</source>
        <translation>未导入任何内容</translation>
    </message>
    <message>
        <source>assignments</source>
        <translation>分配</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>a file that stood there was kept</source>
        <translation>原有文件已保留</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>it is longer than %1 MB</source>
        <translation>超过 %1 MB</translation>
    </message>
    <message>
        <source>task %1 "%2"</source>
        <translation>任务 %1 "%2"</translation>
    </message>
    <message>
        <source>the file's costs of %1 are %2 here</source>
        <translation>文件中的成本 %1 在此为 %2</translation>
    </message>
    <message>
        <source>fixed costs, overtime and rates that change are not counted</source>
        <translation>不计固定成本、加班和变动费率</translation>
    </message>
    <message>
        <source>there are %1 columns, of which the first %2 are written</source>
        <translation>共 %1 列，只写前 %2 列</translation>
    </message>
    <message>
        <source>%1, row %2, column %3</source>
        <translation>%1，第 %2 行第 %3 列</translation>
    </message>
    <message>
        <source>a text of %1 characters is cut to %2</source>
        <translation>%1 个字符的文本截为 %2 个</translation>
    </message>
    <message>
        <source>the sheet '%1' holds %2 rows, and there are more</source>
        <translation>工作表 '%1' 可容 %2 行，而实际更多</translation>
    </message>
    <message>
        <source>an XLSX workbook has room for them</source>
        <translation>XLSX 工作簿容得下</translation>
    </message>
    <message>
        <source>%1 tasks belong to no summary and are not written</source>
        <translation>%1 个任务不属于任何摘要任务，未写入</translation>
    </message>
    <message>
        <source>%1 tasks share a name: a workbook cannot tell their assignments apart</source>
        <translation>%1 个任务重名：工作簿无法区分其分配</translation>
    </message>
    <message>
        <source>give them different names</source>
        <translation>请给它们不同的名称</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>a cell holds %1 characters, and there are more</source>
        <translation>单元格可容 %1 个字符，而实际更多</translation>
    </message>
    <message>
        <source>a sheet holds %1 rows, and there are more</source>
        <translation>工作表可容 %1 行，而实际更多</translation>
    </message>
    <message>
        <source>there are more than %1 columns</source>
        <translation>超过 %1 列</translation>
    </message>
    <message>
        <source>no temporary folder</source>
        <translation>没有临时文件夹</translation>
    </message>
    <message>
        <source>give them different names, or write readable sheets</source>
        <translation>请给它们不同的名称，或写出易读的表</translation>
    </message>
    <message>
        <source>there is no temporary folder to unpack it into</source>
        <translation>没有用于解包的临时文件夹</translation>
    </message>
    <message>
        <source>the workbook has no worksheet</source>
        <translation>工作簿没有工作表</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>is larger than 2 GB</source>
        <translation>大于 2 GB</translation>
    </message>
    <message>
        <source>is no compound file</source>
        <translation>不是复合文件</translation>
    </message>
    <message>
        <source>the chain of its directory is damaged</source>
        <translation>其目录链已损坏</translation>
    </message>
    <message>
        <source>its directory has no root</source>
        <translation>其目录没有根</translation>
    </message>
    <message>
        <source>its sector table lies outside of the file</source>
        <translation>其扇区表在文件之外</translation>
    </message>
    <message>
        <source>is no workbook of the 97 to 2003 format</source>
        <translation>不是 97 至 2003 格式的工作簿</translation>
    </message>
    <message>
        <source>is a workbook of version 95 or before</source>
        <translation>是 95 或更早版本的工作簿</translation>
    </message>
    <message>
        <source>is encrypted</source>
        <translation>已加密</translation>
    </message>
    <message>
        <source>the name of sheet %1 is cut</source>
        <translation>工作表 %1 的名称被截断</translation>
    </message>
    <message>
        <source>its table of texts is cut</source>
        <translation>其文本表被截断</translation>
    </message>
    <message>
        <source>its stream ends early</source>
        <translation>其数据流提前结束</translation>
    </message>
    <message>
        <source>the sheet "%1" does not begin where the workbook says</source>
        <translation>工作表 "%1" 不在工作簿所说的位置</translation>
    </message>
    <message>
        <source>the sheet "%2" is damaged at byte %1</source>
        <translation>工作表 "%2" 在第 %1 字节处损坏</translation>
    </message>
    <message>
        <source>the sheet "%1" ends early</source>
        <translation>工作表 "%1" 提前结束</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>超过 %1 列</translation>
    </message>
    <message>
        <source>more than %1 cells in the file</source>
        <translation>文件中超过 %1 个单元格</translation>
    </message>
    <message>
        <source>a cell longer than %1 bytes</source>
        <translation>单元格超过 %1 字节</translation>
    </message>
    <message>
        <source>a quote may be missing its partner</source>
        <translation>引号可能不成对</translation>
    </message>
    <message>
        <source>the quote opened here is never closed</source>
        <translation>此处的引号没有结束</translation>
    </message>
    <message>
        <source>write a quote inside a quoted cell twice</source>
        <translation>引号单元格内的引号请写两遍</translation>
    </message>
    <message>
        <source>text after a closing quote</source>
        <translation>右引号之后还有文字</translation>
    </message>
    <message>
        <source>not a CSV file but an archive or a workbook</source>
        <translation>不是 CSV 文件，而是压缩包或工作簿</translation>
    </message>
    <message>
        <source>save the task sheet as CSV (UTF-8)</source>
        <translation>请把任务表存为 CSV (UTF-8)</translation>
    </message>
    <message>
        <source>the text is UTF-16</source>
        <translation>文本是 UTF-16 编码</translation>
    </message>
    <message>
        <source>save the file as CSV (UTF-8)</source>
        <translation>请把文件存为 CSV (UTF-8)</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>超过 %1 字节</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>文本不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>超过 %1 行</translation>
    </message>
    <message>
        <source>a second list of the same kind</source>
        <translation>同类的第二个列表</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>已略去</translation>
    </message>
    <message>
        <source>a value that cannot be read</source>
        <translation>无法读取的值</translation>
    </message>
    <message>
        <source>taken as not given</source>
        <translation>视为未给出</translation>
    </message>
    <message>
        <source>a percentage outside 0 to 100</source>
        <translation>0 到 100 之外的百分比</translation>
    </message>
    <message>
        <source>taken as the nearest one</source>
        <translation>取最接近的值</translation>
    </message>
    <message>
        <source>a UID that is taken</source>
        <translation>已被占用的 UID</translation>
    </message>
    <message>
        <source>another ID; links and assignments mean the first one</source>
        <translation>另取标识号；链接和分配指第一个</translation>
    </message>
    <message>
        <source>the project's calendar is not in the file</source>
        <translation>文件中没有项目日历</translation>
    </message>
    <message>
        <source>the usual working time instead</source>
        <translation>改用通常的工作时间</translation>
    </message>
    <message>
        <source>a weekday has other hours</source>
        <translation>某个工作日的时间不同</translation>
    </message>
    <message>
        <source>all working days have the commonest ones</source>
        <translation>所有工作日取最常见的时间</translation>
    </message>
    <message>
        <source>a shift runs over midnight</source>
        <translation>班次跨过午夜</translation>
    </message>
    <message>
        <source>its parts count on one day</source>
        <translation>其各部分计在同一天</translation>
    </message>
    <message>
        <source>a work week that differs for a time</source>
        <translation>一段时间内不同的工作周</translation>
    </message>
    <message>
        <source>a recurring exception has dates outside the plan</source>
        <translation>重复例外有计划之外的日期</translation>
    </message>
    <message>
        <source>only those inside are taken</source>
        <translation>只取计划之内的</translation>
    </message>
    <message>
        <source>an exception without sound dates</source>
        <translation>没有有效日期的例外</translation>
    </message>
    <message>
        <source>too many exceptions</source>
        <translation>例外过多</translation>
    </message>
    <message>
        <source>the project is scheduled from its finish</source>
        <translation>项目从完成日期倒排</translation>
    </message>
    <message>
        <source>the dates are kept, and count from the start</source>
        <translation>日期保留，从开始起算</translation>
    </message>
    <message>
        <source>no start or no finish</source>
        <translation>没有开始或完成时间</translation>
    </message>
    <message>
        <source>set from the project's start and the length</source>
        <translation>由项目开始和工期设定</translation>
    </message>
    <message>
        <source>the finish lies before the start</source>
        <translation>完成早于开始</translation>
    </message>
    <message>
        <source>the start and the length are taken</source>
        <translation>取开始时间和工期</translation>
    </message>
    <message>
        <source>a date outside the working hours</source>
        <translation>工作时间之外的日期</translation>
    </message>
    <message>
        <source>taken as their next border</source>
        <translation>取其最近的边界</translation>
    </message>
    <message>
        <source>starts or finishes on a day off</source>
        <translation>在休息日开始或完成</translation>
    </message>
    <message>
        <source>the dates are kept</source>
        <translation>日期保留</translation>
    </message>
    <message>
        <source>a working time of its own</source>
        <translation>自己的工作时间</translation>
    </message>
    <message>
        <source>left out; the dates are kept</source>
        <translation>已略去；日期保留</translation>
    </message>
    <message>
        <source>the level is below 1</source>
        <translation>级别小于 1</translation>
    </message>
    <message>
        <source>all levels count from 1</source>
        <translation>所有级别从 1 算起</translation>
    </message>
    <message>
        <source>an elapsed duration</source>
        <translation>连续工期</translation>
    </message>
    <message>
        <source>the work is interrupted, or its length is not that of its dates</source>
        <translation>工作中断，或工期与日期不符</translation>
    </message>
    <message>
        <source>one bar; the dates are kept</source>
        <translation>一个条形；日期保留</translation>
    </message>
    <message>
        <source>a milestone that lasts</source>
        <translation>有工期的里程碑</translation>
    </message>
    <message>
        <source>a task</source>
        <translation>作为任务</translation>
    </message>
    <message>
        <source>scheduled by hand</source>
        <translation>手动计划</translation>
    </message>
    <message>
        <source>an ordinary task with its dates</source>
        <translation>带日期的普通任务</translation>
    </message>
    <message>
        <source>inactive</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>struck through, without links</source>
        <translation>加删除线，无链接</translation>
    </message>
    <message>
        <source>a recurring task</source>
        <translation>重复任务</translation>
    </message>
    <message>
        <source>an ordinary summary</source>
        <translation>普通摘要任务</translation>
    </message>
    <message>
        <source>the tasks of a subproject are in another file</source>
        <translation>子项目的任务在另一文件中</translation>
    </message>
    <message>
        <source>its row alone</source>
        <translation>只有其所在行</translation>
    </message>
    <message>
        <source>a constraint</source>
        <translation>限制条件</translation>
    </message>
    <message>
        <source>a deadline</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>a link with a lag</source>
        <translation>带延隔的链接</translation>
    </message>
    <message>
        <source>a link without one; the dates are kept</source>
        <translation>无延隔的链接；日期保留</translation>
    </message>
    <message>
        <source>a link that is not plainly from finish to start</source>
        <translation>不是单纯完成-开始的链接</translation>
    </message>
    <message>
        <source>a link with another file</source>
        <translation>与另一文件的链接</translation>
    </message>
    <message>
        <source>a predecessor that is not in the file</source>
        <translation>不在文件中的前置任务</translation>
    </message>
    <message>
        <source>a link that stands twice</source>
        <translation>重复的链接</translation>
    </message>
    <message>
        <source>taken once</source>
        <translation>只取一次</translation>
    </message>
    <message>
        <source>further baselines</source>
        <translation>其他基线</translation>
    </message>
    <message>
        <source>a summary's dates are not those of its subtasks</source>
        <translation>摘要任务的日期与子任务不符</translation>
    </message>
    <message>
        <source>taken from the subtasks</source>
        <translation>取自子任务</translation>
    </message>
    <message>
        <source>a summary's progress is not that of its subtasks</source>
        <translation>摘要任务的进度与子任务不符</translation>
    </message>
    <message>
        <source>a cost resource</source>
        <translation>成本资源</translation>
    </message>
    <message>
        <source>a material</source>
        <translation>作为材料</translation>
    </message>
    <message>
        <source>a resource's name is taken or empty</source>
        <translation>资源名称已被占用或为空</translation>
    </message>
    <message>
        <source>named otherwise</source>
        <translation>另行命名</translation>
    </message>
    <message>
        <source>a rate per year</source>
        <translation>年费率</translation>
    </message>
    <message>
        <source>a twelfth of it per month</source>
        <translation>按月取其十二分之一</translation>
    </message>
    <message>
        <source>further rates, or some that change with the date</source>
        <translation>其他费率，或随日期变化的费率</translation>
    </message>
    <message>
        <source>units that change with the date</source>
        <translation>随日期变化的单位</translation>
    </message>
    <message>
        <source>an assignment on a summary</source>
        <translation>摘要任务上的分配</translation>
    </message>
    <message>
        <source>an assignment of a task or a resource that is not in the file</source>
        <translation>不在文件中的任务或资源的分配</translation>
    </message>
    <message>
        <source>a resource is assigned to a task more than once</source>
        <translation>资源多次分配给同一任务</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>已合并</translation>
    </message>
    <message>
        <source>how work is spread over its task: day by day, by a contour, a delay or overtime</source>
        <translation>工时在任务中的分布：逐日、按分布曲线、延迟或加班</translation>
    </message>
    <message>
        <source>left out; it is spread evenly</source>
        <translation>已略去；均匀分布</translation>
    </message>
    <message>
        <source>a length in calendar days (month, quarter, year)</source>
        <translation>按日历日计的工期（月、季度、年）</translation>
    </message>
    <message>
        <source>written as working days</source>
        <translation>写作工作日</translation>
    </message>
    <message>
        <source>more than one hyperlink</source>
        <translation>多个超链接</translation>
    </message>
    <message>
        <source>the first one is written</source>
        <translation>写第一个</translation>
    </message>
    <message>
        <source>rows of another height</source>
        <translation>其他高度的行</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>未写入</translation>
    </message>
    <message>
        <source>a priority outside -500 to 500</source>
        <translation>-500 到 500 之外的优先级</translation>
    </message>
    <message>
        <source>written as the nearest one</source>
        <translation>写作最接近的值</translation>
    </message>
    <message>
        <source>a percentage that is not whole</source>
        <translation>非整数百分比</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>已取整</translation>
    </message>
    <message>
        <source>a name that the format cannot hold</source>
        <translation>格式容不下的名称</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>an ID above 2,097,150, or one that is there twice</source>
        <translation>大于 2,097,150 或重复的标识号</translation>
    </message>
    <message>
        <source>written with another UID</source>
        <translation>以另一 UID 写入</translation>
    </message>
    <message>
        <source>no dates</source>
        <translation>没有日期</translation>
    </message>
    <message>
        <source>written at the project's start</source>
        <translation>写在项目开始处</translation>
    </message>
    <message>
        <source>hours that the format cannot hold</source>
        <translation>格式容不下的时间</translation>
    </message>
    <message>
        <source>written as they are measured</source>
        <translation>按计量写入</translation>
    </message>
    <message>
        <source>belongs to no summary of the plan</source>
        <translation>不属于计划中的任何摘要任务</translation>
    </message>
    <message>
        <source>written at its level</source>
        <translation>按其级别写入</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1（%2 次）</translation>
    </message>
    <message>
        <source>resource %1</source>
        <translation>资源 %1</translation>
    </message>
    <message>
        <source>calendar %1</source>
        <translation>日历 %1</translation>
    </message>
    <message>
        <source>assignment %1</source>
        <translation>分配 %1</translation>
    </message>
    <message>
        <source>resource "%1"</source>
        <translation>资源 "%1"</translation>
    </message>
    <message>
        <source>the XML ends early</source>
        <translation>XML 提前结束</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>已放弃</translation>
    </message>
    <message>
        <source>it has more than %1 %2s</source>
        <translation>超过 %1 个 %2</translation>
    </message>
    <message>
        <source>its calendars have more than %1 days</source>
        <translation>日历超过 %1 天</translation>
    </message>
    <message>
        <source>it has more than %1 links</source>
        <translation>超过 %1 个链接</translation>
    </message>
    <message>
        <source>it is no project XML: its root is no Project of that format</source>
        <translation>不是项目 XML：根元素不是该格式的 Project</translation>
    </message>
    <message>
        <source>%1 numbers have more digits than their texts</source>
        <translation>%1 个数的位数多于其文本</translation>
    </message>
    <message>
        <source>%1 is the ID of another task</source>
        <translation>%1 是另一任务的标识号</translation>
    </message>
    <message>
        <source>%1 is the name of another task</source>
        <translation>%1 是另一任务的名称</translation>
    </message>
    <message>
        <source>named %1</source>
        <translation>改名为 %1</translation>
    </message>
    <message>
        <source>taken as one day long</source>
        <translation>按一天计</translation>
    </message>
    <message>
        <source>it has neither a number nor a start, as totals have</source>
        <translation>既无编号也无开始时间，像是合计行</translation>
    </message>
    <message>
        <source>taken as a task</source>
        <translation>作为任务</translation>
    </message>
    <message>
        <source>neither a length nor a finish</source>
        <translation>既无工期也无完成时间</translation>
    </message>
    <message>
        <source>neither a length nor a start</source>
        <translation>既无工期也无开始时间</translation>
    </message>
    <message>
        <source>neither dates nor a length</source>
        <translation>既无日期也无工期</translation>
    </message>
    <message>
        <source>it finishes before it starts</source>
        <translation>完成早于开始</translation>
    </message>
    <message>
        <source>the length counts</source>
        <translation>以工期为准</translation>
    </message>
    <message>
        <source>the length is not that from start to finish</source>
        <translation>工期与起止时间不符</translation>
    </message>
    <message>
        <source>start and finish count</source>
        <translation>以开始和完成时间为准</translation>
    </message>
    <message>
        <source>the finish is not where start and length lead</source>
        <translation>完成时间与开始时间加工期不符</translation>
    </message>
    <message>
        <source>the length is 0, and there is time between start and finish</source>
        <translation>工期为 0，但起止之间有时间</translation>
    </message>
    <message>
        <source>a milestone with time between start and finish</source>
        <translation>里程碑的起止之间有时间</translation>
    </message>
    <message>
        <source>a milestone at its start</source>
        <translation>作为其开始时间处的里程碑</translation>
    </message>
    <message>
        <source>it would wait for itself through %1</source>
        <translation>会经由 %1 等待自己</translation>
    </message>
    <message>
        <source>it cannot wait for its own summary or subtask in %1</source>
        <translation>不能等待 %1 中自己的摘要任务或子任务</translation>
    </message>
    <message>
        <source>no predecessor</source>
        <translation>不作为前置任务</translation>
    </message>
    <message>
        <source>there is no resource %1</source>
        <translation>没有资源 %1</translation>
    </message>
    <message>
        <source>there is no resource %1; did you mean '%2'?</source>
        <translation>没有资源 %1；您是指 '%2' 吗？</translation>
    </message>
    <message>
        <source>there is no task %1</source>
        <translation>没有任务 %1</translation>
    </message>
    <message>
        <source>a summary takes no resources</source>
        <translation>摘要任务不能分配资源</translation>
    </message>
    <message>
        <source>%1 is assigned to this task already</source>
        <translation>%1 已分配给此任务</translation>
    </message>
    <message>
        <source>assignments name tasks by names that several have, %1 in all: %2</source>
        <translation>分配所用的任务名称有重名，共 %1 个：%2</translation>
    </message>
    <message>
        <source>the first task of the name has the assignments</source>
        <translation>同名的第一个任务得到分配</translation>
    </message>
    <message>
        <source>%1 hours of work are counted as %2</source>
        <translation>%1 小时工时按 %2 计</translation>
    </message>
    <message>
        <source>work is the task's length times the units</source>
        <translation>工时等于工期乘以单位</translation>
    </message>
    <message>
        <source>assigned without a rate</source>
        <translation>不带费率分配</translation>
    </message>
    <message>
        <source>not a plan: no title 'Duration'</source>
        <translation>不是计划：缺少标题 'Duration'</translation>
    </message>
    <message>
        <source>not a plan: no title 'Name'</source>
        <translation>不是计划：缺少标题 'Name'</translation>
    </message>
    <message>
        <source>the first row holds the titles: Name, Duration, Start, Predecessors, ...</source>
        <translation>第一行是标题：Name、Duration、Start、Predecessors……</translation>
    </message>
    <message>
        <source>kept as a text that costs nothing</source>
        <translation>保留为不计成本的文本</translation>
    </message>
    <message>
        <source>%1 stands twice</source>
        <translation>%1 重复</translation>
    </message>
    <message>
        <source>assigned once</source>
        <translation>只分配一次</translation>
    </message>
    <message>
        <source>'%1' has no units such as 50%</source>
        <translation>'%1' 没有 50% 之类的单位</translation>
    </message>
    <message>
        <source>assigned with 100%</source>
        <translation>按 100% 分配</translation>
    </message>
    <message>
        <source>'%1' has no sign of percent</source>
        <translation>'%1' 没有百分号</translation>
    </message>
    <message>
        <source>read as %1</source>
        <translation>读作 %1</translation>
    </message>
    <message>
        <source>the cells of its first row are empty</source>
        <translation>第一行的单元格为空</translation>
    </message>
    <message>
        <source>no title of its first row is known</source>
        <translation>第一行没有已知的标题</translation>
    </message>
    <message>
        <source>it has no first row with titles</source>
        <translation>没有带标题的第一行</translation>
    </message>
    <message>
        <source>task sheet</source>
        <translation>任务表</translation>
    </message>
    <message>
        <source>resource sheet</source>
        <translation>资源表</translation>
    </message>
    <message>
        <source>assignment sheet</source>
        <translation>分配表</translation>
    </message>
    <message>
        <source>%1 is the name of another resource</source>
        <translation>%1 是另一资源的名称</translation>
    </message>
    <message>
        <source>%1 cannot be the ID</source>
        <translation>%1 不能作为标识号</translation>
    </message>
    <message>
        <source>the next free ID</source>
        <translation>取下一个空闲标识号</translation>
    </message>
    <message>
        <source>%1 is no type of resource</source>
        <translation>%1 不是资源类型</translation>
    </message>
    <message>
        <source>a work resource</source>
        <translation>作为工时资源</translation>
    </message>
    <message>
        <source>%1 is no rate</source>
        <translation>%1 不是费率</translation>
    </message>
    <message>
        <source>%1 has no known unit of time</source>
        <translation>%1 没有已知的时间单位</translation>
    </message>
    <message>
        <source>money for an hour</source>
        <translation>按每小时计费</translation>
    </message>
    <message>
        <source>%1 is no rate for a month or less</source>
        <translation>%1 不是一个月或更短时间的费率</translation>
    </message>
    <message>
        <source>%1 is no amount</source>
        <translation>%1 不是金额</translation>
    </message>
    <message>
        <source>%1 is taken as a percentage</source>
        <translation>%1 按百分比计</translation>
    </message>
    <message>
        <source>%1 is the ID of no task</source>
        <translation>没有标识号为 %1 的任务</translation>
    </message>
    <message>
        <source>it is a second %1</source>
        <translation>这是第二个 %1</translation>
    </message>
    <message>
        <source>no such column</source>
        <translation>没有这样的列</translation>
    </message>
    <message>
        <source>not read; did you mean %1?</source>
        <translation>未读取；您是指 %1 吗？</translation>
    </message>
    <message>
        <source>column %1 has no title and %2 cells</source>
        <translation>第 %1 列没有标题，有 %2 个单元格</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>%1, row %2</source>
        <translation>%1，第 %2 行</translation>
    </message>
    <message>
        <source>row %1, '%2'</source>
        <translation>第 %1 行 '%2'</translation>
    </message>
    <message>
        <source>%1, row %2, '%3'</source>
        <translation>%1，第 %2 行 '%3'</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1，第 %2 行</translation>
    </message>
    <message>
        <source>line %1, '%2'</source>
        <translation>第 %1 行 '%2'</translation>
    </message>
    <message>
        <source>%1, line %2, '%3'</source>
        <translation>%1，第 %2 行 '%3'</translation>
    </message>
    <message>
        <source>nothing was read</source>
        <translation>未读取任何内容</translation>
    </message>
    <message>
        <source>%1 has a comma that groups no digits</source>
        <translation>%1 中的逗号不是千位分隔</translation>
    </message>
    <message>
        <source>level 1</source>
        <translation>级别 1</translation>
    </message>
    <message>
        <source>%1 is no ID</source>
        <translation>%1 不是标识号</translation>
    </message>
    <message>
        <source>%1 is no level from 1 to 1000</source>
        <translation>%1 不是 1 到 1000 的级别</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 不是数字</translation>
    </message>
    <message>
        <source>%1 is no percentage</source>
        <translation>%1 不是百分比</translation>
    </message>
    <message>
        <source>%1 is no percentage from 0 to 100</source>
        <translation>%1 不是 0 到 100 的百分比</translation>
    </message>
    <message>
        <source>%1 is no length of time</source>
        <translation>%1 不是时间长度</translation>
    </message>
    <message>
        <source>counted in days</source>
        <translation>按天计</translation>
    </message>
    <message>
        <source>there are too many links</source>
        <translation>链接过多</translation>
    </message>
    <message>
        <source>%1 has no closing quote</source>
        <translation>%1 缺少右引号</translation>
    </message>
    <message>
        <source>%1 is no task</source>
        <translation>%1 不是任务</translation>
    </message>
    <message>
        <source>%1 is no link from finish to start without lag</source>
        <translation>%1 不是无延隔的完成-开始链接</translation>
    </message>
    <message>
        <source>%1 is an outline code, and no column has these</source>
        <translation>%1 是大纲编号，而没有含大纲编号的列</translation>
    </message>
    <message>
        <source>there are too many predecessors</source>
        <translation>前置任务过多</translation>
    </message>
    <message>
        <source>%1 names a predecessor twice</source>
        <translation>%1 重复列出前置任务</translation>
    </message>
    <message>
        <source>%1 is no date from 1970 to 2105</source>
        <translation>%1 不是 1970 到 2105 年的日期</translation>
    </message>
    <message>
        <source>some of its dates have the day first, others the month</source>
        <translation>有些日期日在前，有些月在前</translation>
    </message>
    <message>
        <source>nothing says whether day or month stand first in its dates</source>
        <translation>无法判断日期中日在前还是月在前</translation>
    </message>
    <message>
        <source>the month first wherever that is a date</source>
        <translation>凡能成日期处月份在前</translation>
    </message>
    <message>
        <source>its numbers may be fractions</source>
        <translation>其中的数可能是小数比例</translation>
    </message>
    <message>
        <source>read as percentages</source>
        <translation>读作百分比</translation>
    </message>
    <message>
        <source>level %1 follows level %2</source>
        <translation>级别 %1 跟在级别 %2 之后</translation>
    </message>
    <message>
        <source>a task is one level below its summary</source>
        <translation>任务比其摘要任务低一级</translation>
    </message>
    <message>
        <source>there is no task with the ID %1</source>
        <translation>没有标识号为 %1 的任务</translation>
    </message>
    <message>
        <source>there is no task in row %1</source>
        <translation>第 %1 行没有任务</translation>
    </message>
    <message>
        <source>there are several tasks %1</source>
        <translation>有多个任务 %1</translation>
    </message>
    <message>
        <source>there are neither dates nor lengths</source>
        <translation>既无日期也无工期</translation>
    </message>
    <message>
        <source>all tasks are one day long</source>
        <translation>所有任务均为一天</translation>
    </message>
    <message>
        <source>there is no such part</source>
        <translation>没有这个部分</translation>
    </message>
    <message>
        <source>the part is too large</source>
        <translation>该部分过大</translation>
    </message>
    <message>
        <source>%1 references in texts stand for no character</source>
        <translation>文本中有 %1 个引用不代表任何字符</translation>
    </message>
    <message>
        <source>control characters left out, unknown names as they are written</source>
        <translation>略去控制字符，未知名称照原样</translation>
    </message>
    <message>
        <source>the places of %1 cells are not understood, the first is %2</source>
        <translation>%1 个单元格的位置无法识别，第一个是 %2</translation>
    </message>
    <message>
        <source>the places of %1 cells name no row, the first is %2</source>
        <translation>%1 个单元格的位置没有行号，第一个是 %2</translation>
    </message>
    <message>
        <source>taken as cells of the rows that hold them</source>
        <translation>按所在行的单元格处理</translation>
    </message>
    <message>
        <source>%1 formulas have no value, the first in row %2</source>
        <translation>%1 个公式没有值，第一个在第 %2 行</translation>
    </message>
    <message>
        <source>left out: save the workbook with a program that calculates them</source>
        <translation>已略去：请用能计算公式的程序保存工作簿</translation>
    </message>
    <message>
        <source>cancelled: nothing was written</source>
        <translation>已取消：未写入任何内容</translation>
    </message>
    <message>
        <source>there is no plan to draw</source>
        <translation>没有可绘制的计划</translation>
    </message>
    <message>
        <source>no font is installed: nothing can be drawn</source>
        <translation>没有安装字体：无法绘制</translation>
    </message>
    <message>
        <source>the package fonts-dejavu-core brings some</source>
        <translation>软件包 fonts-dejavu-core 提供字体</translation>
    </message>
    <message>
        <source>the plan has no tasks: there is nothing to draw</source>
        <translation>计划没有任务：没有可绘制的内容</translation>
    </message>
    <message>
        <source>no task is shown: there is nothing to draw</source>
        <translation>没有显示的任务：没有可绘制的内容</translation>
    </message>
    <message>
        <source>print setup</source>
        <translation>打印设置</translation>
    </message>
    <message>
        <source>the picture would take %1 x %2 sheets</source>
        <translation>图需要 %1 x %2 张纸</translation>
    </message>
    <message>
        <source>fit it to fewer, take a coarser scale, or print a part of it</source>
        <translation>请减少页数、用更粗的刻度，或只打印一部分</translation>
    </message>
    <message>
        <source>no font has all characters of %1 texts, the first of them '%2'</source>
        <translation>没有字体含全部字符，涉及 %1 段文本，第一段是 '%2'</translation>
    </message>
    <message>
        <source>for Chinese the package fonts-wqy-microhei brings one</source>
        <translation>中文字体由软件包 fonts-wqy-microhei 提供</translation>
    </message>
    <message>
        <source>there is nothing to paint on</source>
        <translation>没有可绘制的画布</translation>
    </message>
    <message>
        <source>the smallest text is %1 points high</source>
        <translation>最小文字高 %1 点</translation>
    </message>
    <message>
        <source>on %1 x %2 sheets it is %3</source>
        <translation>在 %1 x %2 张纸上为 %3</translation>
    </message>
    <message>
        <source>an image of %1 x %2 pixels is too large</source>
        <translation>%1 x %2 像素的图像过大</translation>
    </message>
    <message>
        <source>export a PDF, take a coarser scale, or draw a part of the plan</source>
        <translation>请导出 PDF、用更粗的刻度，或只绘制一部分</translation>
    </message>
    <message>
        <source>there is no memory for the image</source>
        <translation>没有足够内存生成图像</translation>
    </message>
    <message>
        <source>a chart of %1 pixels is too wide</source>
        <translation>%1 像素的图表过宽</translation>
    </message>
    <message>
        <source>Waits for %1</source>
        <translation>等待 %1</translation>
    </message>
    <message>
        <source>Critical: a delay moves the finish</source>
        <translation>关键：延误会推迟完成日期</translation>
    </message>
    <message>
        <source>Starts with the project</source>
        <translation>随项目开始</translation>
    </message>
    <message>
        <source>After</source>
        <translation>前置</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>后续</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Show more time (-)</source>
        <translation>显示更长时间 (-)</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>显示更短时间 (+)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应</translation>
    </message>
    <message>
        <source>Show the whole plan (0)</source>
        <translation>显示整个计划 (0)</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Go to today (T)</source>
        <translation>转到今天 (T)</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Fold all summaries</source>
        <translation>折叠所有摘要任务</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Unfold all summaries</source>
        <translation>展开所有摘要任务</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>More or fewer columns (C)</source>
        <translation>更多或更少的列 (C)</translation>
    </message>
    <message>
        <source>Keys (?)</source>
        <translation>按键 (?)</translation>
    </message>
    <message>
        <source>%1 tasks</source>
        <translation>%1 个任务</translation>
    </message>
    <message>
        <source>Choose a task with a click or the arrow keys.</source>
        <translation>单击或用方向键选择任务。</translation>
    </message>
    <message>
        <source>another task</source>
        <translation>另一个任务</translation>
    </message>
    <message>
        <source>fold and unfold</source>
        <translation>折叠与展开</translation>
    </message>
    <message>
        <source>go to the task's bar</source>
        <translation>转到任务的条形</translation>
    </message>
    <message>
        <source>go to what it waits for, to what waits for it</source>
        <translation>转到它所等待的任务，或等待它的任务</translation>
    </message>
    <message>
        <source>go back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>find; Enter and Shift+Enter for the next and the one before</source>
        <translation>查找；Enter 和 Shift+Enter 转到下一个和上一个</translation>
    </message>
    <message>
        <source>less time, more time, the whole plan</source>
        <translation>更短时间、更长时间、整个计划</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>paper of %1 cannot be printed on; A4 was taken</source>
        <translation>无法在 %1 的纸上打印；改用 A4</translation>
    </message>
    <message>
        <source>at least 40 mm and at most 5 m each way</source>
        <translation>每边至少 40 毫米，至多 5 米</translation>
    </message>
    <message>
        <source>the margins leave less than 20 mm of the paper; margins of 10 mm were taken</source>
        <translation>页边距后纸面不足 20 毫米；改用 10 毫米边距</translation>
    </message>
    <message>
        <source>task %1</source>
        <translation>任务 %1</translation>
    </message>
    <message>
        <source>it is hidden below the task with ID %1, which does not exist: shown</source>
        <translation>它隐藏在不存在的任务（标识号 %1）之下：已显示</translation>
    </message>
    <message>
        <source>%1 elements are passed over</source>
        <translation>跳过 %1 个元素</translation>
    </message>
    <message>
        <source>this is no name of a time zone: passed over</source>
        <translation>这不是时区名称：跳过</translation>
    </message>
    <message>
        <source>this is no name on one line: passed over</source>
        <translation>这不是单行名称：跳过</translation>
    </message>
    <message>
        <source>this part of the package is passed over</source>
        <translation>跳过包的这一部分</translation>
    </message>
    <message>
        <source>the root element is not "Document"</source>
        <translation>根元素不是 "Document"</translation>
    </message>
    <message>
        <source>%1 at place %2 is no number: 0 is taken</source>
        <translation>第 %2 处的 %1 不是数字：取 0</translation>
    </message>
    <message>
        <source>%1 for day %2 is neither 1 nor 0: a day off is taken</source>
        <translation>第 %2 天的 %1 既非 1 也非 0：取休息日</translation>
    </message>
    <message>
        <source>%1 flags for seven days: the others stay as they were</source>
        <translation>七天只有 %1 个标志：其余保持原样</translation>
    </message>
    <message>
        <source>%1 flags for seven days: the first seven are taken</source>
        <translation>七天有 %1 个标志：取前七个</translation>
    </message>
    <message>
        <source>%1 is neither 1 nor 0: no is taken</source>
        <translation>%1 既非 1 也非 0：取否</translation>
    </message>
    <message>
        <source>%1 is no whole number: 0 is taken</source>
        <translation>%1 不是整数：取 0</translation>
    </message>
    <message>
        <source>%1 is no such number: passed over</source>
        <translation>%1 不是这样的数：跳过</translation>
    </message>
    <message>
        <source>%1 is no whole number: passed over</source>
        <translation>%1 不是整数：跳过</translation>
    </message>
    <message>
        <source>%1 is no number from 0 to 4294967295: 0 is taken</source>
        <translation>%1 不是 0 到 4294967295 的数：取 0</translation>
    </message>
    <message>
        <source>%1 is no number from 0 to 2147483647: 0 is taken</source>
        <translation>%1 不是 0 到 2147483647 的数：取 0</translation>
    </message>
    <message>
        <source>%1 is no number: 0 is taken</source>
        <translation>%1 不是数字：取 0</translation>
    </message>
    <message>
        <source>%1, in %2 places</source>
        <translation>%1，共 %2 处</translation>
    </message>
    <message>
        <source>the attribute %1 of '%2' is not known: passed over</source>
        <translation>'%2' 的属性 %1 未知：跳过</translation>
    </message>
    <message>
        <source>text beside the elements of '%1' is passed over</source>
        <translation>跳过 '%1' 元素旁的文字</translation>
    </message>
    <message>
        <source>an element %1 is read as a '%2'</source>
        <translation>元素 %1 读作 '%2'</translation>
    </message>
    <message>
        <source>the element %1 in '%2' is not known: passed over with the %3 elements in it</source>
        <translation>'%2' 中的元素 %1 未知：连同其中 %3 个元素跳过</translation>
    </message>
    <message>
        <source>the element %1 in '%2' is not known: passed over</source>
        <translation>'%2' 中的元素 %1 未知：跳过</translation>
    </message>
    <message>
        <source>'%1' stands twice: intervals of both are taken, of other values the last</source>
        <translation>'%1' 重复：时段两者都取，其他值取最后一个</translation>
    </message>
    <message>
        <source>'%1' stands twice: the first one is taken</source>
        <translation>'%1' 重复：取第一个</translation>
    </message>
    <message>
        <source>'%1' stands twice: the last one is taken, and the %2 elements of the one before are not</source>
        <translation>'%1' 重复：取最后一个，前一个的 %2 个元素不取</translation>
    </message>
    <message>
        <source>'%1' stands twice: the last one is taken</source>
        <translation>'%1' 重复：取最后一个</translation>
    </message>
    <message>
        <source>the file has none of the lists of a plan</source>
        <translation>文件没有计划的任何列表</translation>
    </message>
    <message>
        <source>there is no '%1': the plan has no working hours, and the usual options</source>
        <translation>没有 '%1'：计划没有工作时间，选项为默认</translation>
    </message>
    <message>
        <source>there is no '%1': the plan's resources stay as they were</source>
        <translation>没有 '%1'：计划的资源保持原样</translation>
    </message>
    <message>
        <source>there is no '%1': the plan's columns stay as they were</source>
        <translation>没有 '%1'：计划的列保持原样</translation>
    </message>
    <message>
        <source>there is no '%1': the page stays as it was</source>
        <translation>没有 '%1'：页面保持原样</translation>
    </message>
    <message>
        <source>there are %1 tasks in the file and %2 row heights</source>
        <translation>文件中有 %1 个任务和 %2 个行高</translation>
    </message>
    <message>
        <source>the version %1 is none: %2 is taken</source>
        <translation>版本 %1 无效：取 %2</translation>
    </message>
    <message>
        <source>the file has version %1, and what a version after %2 added is not known</source>
        <translation>文件版本为 %1，%2 之后新增的内容未知</translation>
    </message>
    <message>
        <source>%1 starts and %2 finishes: intervals without one end at 12:00</source>
        <translation>%1 个开始和 %2 个结束：缺结束的时段到 12:00</translation>
    </message>
    <message>
        <source>%1 starts and %2 finishes: the surplus is passed over</source>
        <translation>%1 个开始和 %2 个结束：跳过多余的</translation>
    </message>
    <message>
        <source>the interval %1 lies past midnight: it counts up to 24:00</source>
        <translation>时段 %1 超过午夜：计到 24:00</translation>
    </message>
    <message>
        <source>the interval %1 ends before it begins: it counts as nothing</source>
        <translation>时段 %1 结束早于开始：不计</translation>
    </message>
    <message>
        <source>the interval %1 has no length</source>
        <translation>时段 %1 长度为零</translation>
    </message>
    <message>
        <source>the interval %1 overlaps one before it: the hours of both count</source>
        <translation>时段 %1 与前一个重叠：两者都计</translation>
    </message>
    <message>
        <source>the interval %1 lies before one that stands ahead of it: breaks are counted in the order of the list</source>
        <translation>时段 %1 早于列在其前的时段：休息按列表顺序计</translation>
    </message>
    <message>
        <source>the interval %1 is not made of whole hours: the hours that it touches at its end do not count, those at its beginning do</source>
        <translation>时段 %1 不是整小时：末尾的不足小时不计，开头的计入</translation>
    </message>
    <message>
        <source>working time</source>
        <translation>工作时间</translation>
    </message>
    <message>
        <source>a day has no hours of work: nothing can be scheduled</source>
        <translation>一天没有工作小时：无法排程</translation>
    </message>
    <message>
        <source>a day counts as %1 hours of work from %2:00 to %3:00</source>
        <translation>一天计 %1 个工作小时，从 %2:00 到 %3:00</translation>
    </message>
    <message>
        <source>no day of the week is a working day: nothing can be scheduled</source>
        <translation>一周没有工作日：无法排程</translation>
    </message>
    <message>
        <source>exception %1</source>
        <translation>例外 %1</translation>
    </message>
    <message>
        <source>there is no %1: today is taken</source>
        <translation>没有 %1：取今天</translation>
    </message>
    <message>
        <source>there is no %1 (0): 1 January 1970 is taken</source>
        <translation>没有 %1 (0)：取 1970 年 1 月 1 日</translation>
    </message>
    <message>
        <source>it begins on %1 and ends on %2: it covers no date</source>
        <translation>从 %1 到 %2：不含任何日期</translation>
    </message>
    <message>
        <source>nothing says that it is an exception: it makes no date a day off or a working day</source>
        <translation>没有标明是例外：不改变任何日期</translation>
    </message>
    <message>
        <source>its hours %1 are not kept: a whole working day of %2 hours is counted</source>
        <translation>其时间 %1 不保留：按 %2 小时的完整工作日计</translation>
    </message>
    <message>
        <source>ID %1 is that of resource %2, too: resources are told apart by their names</source>
        <translation>标识号 %1 也属于资源 %2：资源以名称区分</translation>
    </message>
    <message>
        <source>%1 is the name of resource %2, too: tasks mean that one</source>
        <translation>%1 也是资源 %2 的名称：任务指后者</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>没有名称</translation>
    </message>
    <message>
        <source>its units are negative</source>
        <translation>其单位为负</translation>
    </message>
    <message>
        <source>the unit of its rate is not known: it costs nothing</source>
        <translation>其费率单位未知：不计成本</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>列 %1</translation>
    </message>
    <message>
        <source>there is no column of its kind: it stays empty</source>
        <translation>没有这种列：保持为空</translation>
    </message>
    <message>
        <source>%1 done is not within 0 to 1 (100 %): kept</source>
        <translation>完成 %1 不在 0 到 1（100 %）之内：保留</translation>
    </message>
    <message>
        <source>it has a finish and no start: kept, as if it began in 1970</source>
        <translation>有完成时间而无开始时间：保留，视为 1970 年开始</translation>
    </message>
    <message>
        <source>it has a start and no finish: kept</source>
        <translation>有开始时间而无完成时间：保留</translation>
    </message>
    <message>
        <source>it finishes before it starts: kept</source>
        <translation>完成早于开始：保留</translation>
    </message>
    <message>
        <source>a milestone that takes time: kept, and shown without its length</source>
        <translation>有工期的里程碑：保留，显示时不带工期</translation>
    </message>
    <message>
        <source>%1 is no unit of durations: kept, and counted in days</source>
        <translation>%1 不是工期单位：保留，按天计</translation>
    </message>
    <message>
        <source>it names the predecessor %1 twice: kept</source>
        <translation>前置任务 %1 重复：保留</translation>
    </message>
    <message>
        <source>it names the successor %1 twice: kept</source>
        <translation>后续任务 %1 重复：保留</translation>
    </message>
    <message>
        <source>there is nothing in it: saving leaves it out</source>
        <translation>其中没有内容：保存时略去</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>文件名过长</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>符号链接层数过多</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有空间</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘配额</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>文件系统为只读</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>设备或资源忙</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>writing was given up</source>
        <translation>已放弃写入</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>第 %1 字节：%2</translation>
    </message>
    <message>
        <source>the text ends inside an element</source>
        <translation>文本在元素内结束</translation>
    </message>
    <message>
        <source>there are too many elements and attributes</source>
        <translation>元素和属性过多</translation>
    </message>
    <message>
        <source>a comment does not end</source>
        <translation>注释没有结束</translation>
    </message>
    <message>
        <source>a CDATA section does not end</source>
        <translation>CDATA 段没有结束</translation>
    </message>
    <message>
        <source>a document type declaration is not accepted</source>
        <translation>不接受文档类型声明</translation>
    </message>
    <message>
        <source>a processing instruction does not end</source>
        <translation>处理指令没有结束</translation>
    </message>
    <message>
        <source>'&lt;' inside a tag</source>
        <translation>标签内有 '&lt;'</translation>
    </message>
    <message>
        <source>an end tag without its element</source>
        <translation>结束标签没有对应元素</translation>
    </message>
    <message>
        <source>elements are nested too deep</source>
        <translation>元素嵌套过深</translation>
    </message>
    <message>
        <source>an attribute value does not end</source>
        <translation>属性值没有结束</translation>
    </message>
    <message>
        <source>a tag does not end</source>
        <translation>标签没有结束</translation>
    </message>
    <message>
        <source>byte %1: no sound UTF-8</source>
        <translation>第 %1 字节：不是有效的 UTF-8</translation>
    </message>
    <message>
        <source>no sound XML</source>
        <translation>不是有效的 XML</translation>
    </message>
    <message>
        <source>there is something beside the root element</source>
        <translation>根元素之外还有内容</translation>
    </message>
    <message>
        <source>an attribute stands twice in the element %1</source>
        <translation>元素 %1 中的属性重复</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名称为空</translation>
    </message>
    <message>
        <source>the name is absolute</source>
        <translation>名称是绝对路径</translation>
    </message>
    <message>
        <source>the name holds a backslash</source>
        <translation>名称含反斜杠</translation>
    </message>
    <message>
        <source>the name holds a control character</source>
        <translation>名称含控制字符</translation>
    </message>
    <message>
        <source>the name is no sound UTF-8</source>
        <translation>名称不是有效的 UTF-8</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>名称过长</translation>
    </message>
    <message>
        <source>the name leaves its folder or goes round in it</source>
        <translation>名称越出文件夹或在其中绕行</translation>
    </message>
    <message>
        <source>the entry is too large</source>
        <translation>条目过大</translation>
    </message>
    <message>
        <source>the entry unpacks to far more than it holds</source>
        <translation>条目解压后远大于其内容</translation>
    </message>
    <message>
        <source>a folder has content</source>
        <translation>文件夹条目带有内容</translation>
    </message>
    <message>
        <source>the name stands there twice</source>
        <translation>名称重复</translation>
    </message>
    <message>
        <source>there are too many folders</source>
        <translation>文件夹过多</translation>
    </message>
    <message>
        <source>the archive unpacks to too much</source>
        <translation>压缩包解压后过大</translation>
    </message>
    <message>
        <source>the archive unpacks to far more than it holds</source>
        <translation>压缩包解压后远大于其内容</translation>
    </message>
    <message>
        <source>%1: the name stands for a file and for a folder</source>
        <translation>%1：名称既是文件又是文件夹</translation>
    </message>
</context>
<context>
    <name>window</name>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>begins another plan</source>
        <translation>开始另一个计划</translation>
    </message>
    <message>
        <source>New &amp;window</source>
        <translation>新建窗口(&amp;W)</translation>
    </message>
    <message>
        <source>opens another window</source>
        <translation>打开另一个窗口</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>opens a package, a CSV file, a workbook or project XML</source>
        <translation>打开包、CSV 文件、工作簿或项目 XML</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>saves the plan as a package</source>
        <translation>把计划保存为包</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>saves it under another name</source>
        <translation>以另一名称保存</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>writes the plan as PDF, PNG, SVG, HTML, XLSX, XLS, project XML or CSV</source>
        <translation>把计划写成 PDF、PNG、SVG、HTML、XLSX、XLS、项目 XML 或 CSV</translation>
    </message>
    <message>
        <source>Page set-&amp;up…</source>
        <translation>页面设置(&amp;U)…</translation>
    </message>
    <message>
        <source>paper, margins, number of sheets</source>
        <translation>纸张、页边距、页数</translation>
    </message>
    <message>
        <source>&amp;Print preview…</source>
        <translation>打印预览(&amp;P)…</translation>
    </message>
    <message>
        <source>shows the sheets as they are printed</source>
        <translation>按打印效果显示各页</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>打印(&amp;R)…</translation>
    </message>
    <message>
        <source>prints the sheets</source>
        <translation>打印各页</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>closes the window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>closes all windows</source>
        <translation>关闭所有窗口</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>takes the last step back</source>
        <translation>撤销上一步</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>makes it again</source>
        <translation>重做一步</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>cuts the chosen tasks with all below them</source>
        <translation>剪切所选任务及其下全部内容</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>copies the chosen tasks with all below them; spreadsheets get a table</source>
        <translation>复制所选任务及其下全部内容；电子表格得到表格</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>pastes tasks above the chosen one; of lines of text each becomes a task</source>
        <translation>把任务粘贴到所选任务上方；每行文字成为一个任务</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>创建副本(&amp;D)</translation>
    </message>
    <message>
        <source>copies the chosen tasks behind themselves</source>
        <translation>在所选任务之后复制它们</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>删除(&amp;L)</translation>
    </message>
    <message>
        <source>removes the chosen tasks</source>
        <translation>删除所选任务</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>chooses all tasks</source>
        <translation>选择所有任务</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>查找(&amp;F)…</translation>
    </message>
    <message>
        <source>looks for a text in names, notes and resources</source>
        <translation>在名称、备注和资源中查找文字</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>goes to the next place</source>
        <translation>转到下一处</translation>
    </message>
    <message>
        <source>&amp;Replace…</source>
        <translation>替换(&amp;R)…</translation>
    </message>
    <message>
        <source>puts another text in its place, in names and notes</source>
        <translation>在名称和备注中以另一段文字代替</translation>
    </message>
    <message>
        <source>&amp;Go to row…</source>
        <translation>转到行(&amp;G)…</translation>
    </message>
    <message>
        <source>goes to a task by its number</source>
        <translation>按编号转到任务</translation>
    </message>
    <message>
        <source>&amp;Edit cell</source>
        <translation>编辑单元格(&amp;E)</translation>
    </message>
    <message>
        <source>edits the cell in its place</source>
        <translation>就地编辑单元格</translation>
    </message>
    <message>
        <source>Insert &amp;above</source>
        <translation>在上方插入(&amp;A)</translation>
    </message>
    <message>
        <source>a new task above the chosen one</source>
        <translation>在所选任务上方新建任务</translation>
    </message>
    <message>
        <source>Insert &amp;below</source>
        <translation>在下方插入(&amp;B)</translation>
    </message>
    <message>
        <source>a new task below the chosen one, on its level</source>
        <translation>在所选任务下方新建同级任务</translation>
    </message>
    <message>
        <source>Insert as &amp;child</source>
        <translation>插入为子任务(&amp;C)</translation>
    </message>
    <message>
        <source>a new task inside the chosen one</source>
        <translation>在所选任务之内新建任务</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>降级(&amp;I)</translation>
    </message>
    <message>
        <source>makes the chosen tasks part of the one before them</source>
        <translation>使所选任务成为前一任务的一部分</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>升级(&amp;O)</translation>
    </message>
    <message>
        <source>moves the chosen tasks one level up</source>
        <translation>把所选任务升一级</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Fold or unfold</source>
        <translation>折叠或展开(&amp;F)</translation>
    </message>
    <message>
        <source>hides or shows what is below a summary</source>
        <translation>隐藏或显示摘要任务之下的内容</translation>
    </message>
    <message>
        <source>Fold all</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>shows the top level alone</source>
        <translation>只显示最高级别</translation>
    </message>
    <message>
        <source>Unfold all</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>shows all tasks</source>
        <translation>显示所有任务</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>链接(&amp;L)</translation>
    </message>
    <message>
        <source>each chosen task waits for the one chosen before it</source>
        <translation>每个所选任务等待先选的那个</translation>
    </message>
    <message>
        <source>U&amp;nlink</source>
        <translation>取消链接(&amp;N)</translation>
    </message>
    <message>
        <source>takes the links between the chosen tasks away; of one task, all its links</source>
        <translation>删除所选任务之间的链接；只选一个时删除其全部链接</translation>
    </message>
    <message>
        <source>&amp;Milestone</source>
        <translation>里程碑(&amp;M)</translation>
    </message>
    <message>
        <source>makes milestones of the chosen tasks, or tasks of milestones</source>
        <translation>把所选任务变为里程碑，或把里程碑变为任务</translation>
    </message>
    <message>
        <source>D&amp;one</source>
        <translation>完成(&amp;O)</translation>
    </message>
    <message>
        <source>sets the chosen tasks to 100 %</source>
        <translation>把所选任务设为 100 %</translation>
    </message>
    <message>
        <source>Open &amp;hyperlink…</source>
        <translation>打开超链接(&amp;H)…</translation>
    </message>
    <message>
        <source>shows the page, or begins the mail, that the chosen task names</source>
        <translation>显示所选任务所指的网页，或开始写邮件</translation>
    </message>
    <message>
        <source>Working &amp;time…</source>
        <translation>工作时间(&amp;T)…</translation>
    </message>
    <message>
        <source>working days, hours, holidays</source>
        <translation>工作日、时间、休息日</translation>
    </message>
    <message>
        <source>&amp;Resources…</source>
        <translation>资源(&amp;R)…</translation>
    </message>
    <message>
        <source>who and what works, and what it costs</source>
        <translation>人员和物料及其成本</translation>
    </message>
    <message>
        <source>&amp;Columns…</source>
        <translation>列(&amp;C)…</translation>
    </message>
    <message>
        <source>which columns the table shows</source>
        <translation>表中显示哪些列</translation>
    </message>
    <message>
        <source>&amp;Schedule</source>
        <translation>排程(&amp;S)</translation>
    </message>
    <message>
        <source>moves every task behind those it waits for</source>
        <translation>把每个任务移到它所等待的任务之后</translation>
    </message>
    <message>
        <source>Close &amp;gaps</source>
        <translation>消除间隙(&amp;G)</translation>
    </message>
    <message>
        <source>starts linked tasks that have not begun as soon as those they wait for have ended</source>
        <translation>让尚未开始的有链接任务在其所等待的任务结束后立即开始</translation>
    </message>
    <message>
        <source>Set &amp;baseline</source>
        <translation>设置基线(&amp;B)</translation>
    </message>
    <message>
        <source>remembers dates and costs, to compare with later</source>
        <translation>记录日期和成本，供以后比较</translation>
    </message>
    <message>
        <source>Clear baseline</source>
        <translation>清除基线</translation>
    </message>
    <message>
        <source>forgets them</source>
        <translation>清除记录</translation>
    </message>
    <message>
        <source>Compare &amp;with baseline</source>
        <translation>与基线比较(&amp;W)</translation>
    </message>
    <message>
        <source>lists the tasks that are not where the baseline has them, and by how much</source>
        <translation>列出与基线不一致的任务及其偏差</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>more pixels for a day</source>
        <translation>每天占更多像素</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>fewer pixels for a day</source>
        <translation>每天占更少像素</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>适应窗口(&amp;F)</translation>
    </message>
    <message>
        <source>the whole plan on the screen</source>
        <translation>整个计划显示在屏幕上</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>今天(&amp;T)</translation>
    </message>
    <message>
        <source>goes to the line of today</source>
        <translation>转到今天的线</translation>
    </message>
    <message>
        <source>&amp;Critical path</source>
        <translation>关键路径(&amp;C)</translation>
    </message>
    <message>
        <source>shows which delays move the finish</source>
        <translation>显示哪些延误会推迟完成</translation>
    </message>
    <message>
        <source>&amp;Baseline</source>
        <translation>基线(&amp;B)</translation>
    </message>
    <message>
        <source>shows where tasks were planned to be</source>
        <translation>显示任务原定的位置</translation>
    </message>
    <message>
        <source>&amp;Slack</source>
        <translation>浮动时间(&amp;S)</translation>
    </message>
    <message>
        <source>shows how far tasks can slip</source>
        <translation>显示任务可推迟多久</translation>
    </message>
    <message>
        <source>&amp;Links</source>
        <translation>链接(&amp;L)</translation>
    </message>
    <message>
        <source>shows what waits for what</source>
        <translation>显示等待关系</translation>
    </message>
    <message>
        <source>Sheet bo&amp;rders</source>
        <translation>页边界(&amp;R)</translation>
    </message>
    <message>
        <source>shows where the sheets of paper end</source>
        <translation>显示纸张边界</translation>
    </message>
    <message>
        <source>L&amp;abels</source>
        <translation>标签(&amp;A)</translation>
    </message>
    <message>
        <source>texts beside bars: resources, names, dates, none</source>
        <translation>条形旁的文字：资源、名称、日期、无</translation>
    </message>
    <message>
        <source>&amp;Why is it when it is?</source>
        <translation>为何在此时(&amp;W)？</translation>
    </message>
    <message>
        <source>a panel that explains the dates of the chosen task</source>
        <translation>解释所选任务日期的面板</translation>
    </message>
    <message>
        <source>F&amp;ilter</source>
        <translation>筛选(&amp;I)</translation>
    </message>
    <message>
        <source>lists the critical tasks, the late ones, those of a resource</source>
        <translation>列出关键任务、迟到的任务、某个资源的任务</translation>
    </message>
    <message>
        <source>&amp;Hide other tasks</source>
        <translation>隐藏其他任务(&amp;H)</translation>
    </message>
    <message>
        <source>shows the tasks of the filter alone, with the summaries above them</source>
        <translation>只显示筛选出的任务及其上级摘要任务</translation>
    </message>
    <message>
        <source>&amp;Go to what drives it</source>
        <translation>转到决定它的任务(&amp;G)</translation>
    </message>
    <message>
        <source>goes to the task that the chosen one waits for longest</source>
        <translation>转到所选任务等待最久的任务</translation>
    </message>
    <message>
        <source>&amp;Commands…</source>
        <translation>命令(&amp;C)…</translation>
    </message>
    <message>
        <source>finds every command by its name</source>
        <translation>按名称查找命令</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>按键(&amp;K)</translation>
    </message>
    <message>
        <source>what each key does</source>
        <translation>各按键的作用</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>any text</source>
        <translation>任意文字</translation>
    </message>
    <message>
        <source>replaces what stands in the cell</source>
        <translation>替换单元格内容</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>回车</translation>
    </message>
    <message>
        <source>takes it and goes down; in the last row each name makes a task</source>
        <translation>确认并下移；在最后一行，每个名称新建一个任务</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab、Shift+Tab</translation>
    </message>
    <message>
        <source>takes it and goes to the next or previous cell</source>
        <translation>确认并转到下一个或上一个单元格</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>leaves the cell, or a drag, as it was</source>
        <translation>单元格或拖动恢复原状</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>左、右</translation>
    </message>
    <message>
        <source>on a summary's name: folds and unfolds it</source>
        <translation>在摘要任务名称上：折叠和展开</translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation>Ctrl+滚轮</translation>
    </message>
    <message>
        <source>zooms around the pointer</source>
        <translation>以指针为中心缩放</translation>
    </message>
    <message>
        <source>Shift+wheel</source>
        <translation>Shift+滚轮</translation>
    </message>
    <message>
        <source>scrolls sideways</source>
        <translation>横向滚动</translation>
    </message>
    <message>
        <source>drag a bar sideways</source>
        <translation>横向拖动条形</translation>
    </message>
    <message>
        <source>moves the task; Alt goes by minutes</source>
        <translation>移动任务；按住 Alt 以分钟为单位</translation>
    </message>
    <message>
        <source>drag a bar's right end</source>
        <translation>拖动条形右端</translation>
    </message>
    <message>
        <source>changes its length</source>
        <translation>更改工期</translation>
    </message>
    <message>
        <source>drag the end of the done part</source>
        <translation>拖动已完成部分的末端</translation>
    </message>
    <message>
        <source>changes how much is done</source>
        <translation>更改完成程度</translation>
    </message>
    <message>
        <source>drag a bar up or down, or the circle behind it</source>
        <translation>上下拖动条形或其后的圆圈</translation>
    </message>
    <message>
        <source>draws a link to the task that is to wait</source>
        <translation>画出到等待任务的链接</translation>
    </message>
    <message>
        <source>drag the dates sideways</source>
        <translation>横向拖动日期</translation>
    </message>
    <message>
        <source>zooms</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>drag with the middle button</source>
        <translation>用中键拖动</translation>
    </message>
    <message>
        <source>scrolls</source>
        <translation>滚动</translation>
    </message>
    <message>
        <source>drag the lower edge of a row's number</source>
        <translation>拖动行号的下边</translation>
    </message>
    <message>
        <source>changes its height</source>
        <translation>更改行高</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Task</source>
        <translation>任务(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Plan</source>
        <translation>计划(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>In the table and on the chart</source>
        <translation>在表格中和图上</translation>
    </message>
    <message>
        <source>kwgantt</source>
        <translation>kwgantt</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Working time</source>
        <translation>工作时间</translation>
    </message>
    <message>
        <source>Hours of a working day</source>
        <translation>工作日的时间</translation>
    </message>
    <message>
        <source>What</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>例外日期</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>删除(&amp;R)</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>工作日</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>休息日</translation>
    </message>
    <message>
        <source>The month as it comes out</source>
        <translation>该月的结果</translation>
    </message>
    <message>
        <source>Working days</source>
        <translation>工作日</translation>
    </message>
    <message>
        <source>Exceptions; the first one that names a date decides:</source>
        <translation>例外日期；以第一条包含该日期的为准：</translation>
    </message>
    <message>
        <source>off</source>
        <translation>休息</translation>
    </message>
    <message>
        <source>'%1' are no hours</source>
        <translation>'%1' 不是时间</translation>
    </message>
    <message>
        <source>write them as 08:00-12:00, 13:00-17:00</source>
        <translation>请写成 08:00-12:00, 13:00-17:00</translation>
    </message>
    <message>
        <source>write dates as 2026-12-25, hours as 08:00-12:00</source>
        <translation>日期写成 2026-12-25，时间写成 08:00-12:00</translation>
    </message>
    <message>
        <source>Change working time</source>
        <translation>更改工作时间</translation>
    </message>
    <message>
        <source>Type what you want to do</source>
        <translation>键入您想做的事</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Commands that fit</source>
        <translation>匹配的命令</translation>
    </message>
    <message>
        <source>No command has all of these words</source>
        <translation>没有包含所有这些词的命令</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>区分大小写(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Replace all</source>
        <translation>全部替换(&amp;R)</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>查找和替换</translation>
    </message>
    <message>
        <source>&amp;Text in names, notes and resources:</source>
        <translation>名称、备注和资源中的文字(&amp;T)：</translation>
    </message>
    <message>
        <source>Replace in &amp;names and notes by:</source>
        <translation>在名称和备注中替换为(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Find next</source>
        <translation>查找下一个(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Fit to</source>
        <translation>适应(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Scale to</source>
        <translation>缩放到(&amp;S)</translation>
    </message>
    <message>
        <source>Days off and lines behind the bars</source>
        <translation>条形背后的休息日和线条</translation>
    </message>
    <message>
        <source>Fold marks of summaries</source>
        <translation>摘要任务的折叠标记</translation>
    </message>
    <message>
        <source>Page set-up</source>
        <translation>页面设置</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Sheets across</source>
        <translation>横向页数</translation>
    </message>
    <message>
        <source>Sheets down</source>
        <translation>纵向页数</translation>
    </message>
    <message>
        <source>sheets across and</source>
        <translation>页横向，</translation>
    </message>
    <message>
        <source>down</source>
        <translation>页纵向</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>纸张(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>方向(&amp;O)</translation>
    </message>
    <message>
        <source>Margins &amp;left and right</source>
        <translation>左右边距(&amp;L)</translation>
    </message>
    <message>
        <source>Margins &amp;above and below</source>
        <translation>上下边距(&amp;A)</translation>
    </message>
    <message>
        <source>One sheet, smallest text %1 pt%2</source>
        <translation>一页，最小文字 %1 pt%2</translation>
    </message>
    <message>
        <source>: hard to read</source>
        <translation>：难以阅读</translation>
    </message>
    <message>
        <source>%1 × %2 sheets, smallest text %3 pt%4</source>
        <translation>%1 × %2 页，最小文字 %3 pt%4</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>打印预览</translation>
    </message>
    <message>
        <source>Page &amp;set-up…</source>
        <translation>页面设置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>另存为 PDF(&amp;S)…</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>页</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>共 %1 页</translation>
    </message>
    <message>
        <source>Overtime</source>
        <translation>加班</translation>
    </message>
    <message>
        <source>Per use</source>
        <translation>每次使用</translation>
    </message>
    <message>
        <source>Change resource</source>
        <translation>更改资源</translation>
    </message>
    <message>
        <source>New resource</source>
        <translation>新资源</translation>
    </message>
    <message>
        <source>Add resource</source>
        <translation>添加资源</translation>
    </message>
    <message>
        <source>Remove resource</source>
        <translation>删除资源</translation>
    </message>
    <message>
        <source>One assignment went with it</source>
        <translation>一个分配随之删除</translation>
    </message>
    <message>
        <source>%1 assignments went with it</source>
        <translation>同时删除了 %1 个分配</translation>
    </message>
    <message>
        <source>Rename task</source>
        <translation>重命名任务</translation>
    </message>
    <message>
        <source>Change start</source>
        <translation>更改开始</translation>
    </message>
    <message>
        <source>Change finish</source>
        <translation>更改完成</translation>
    </message>
    <message>
        <source>Change duration</source>
        <translation>更改工期</translation>
    </message>
    <message>
        <source>Change progress</source>
        <translation>更改进度</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translation>更改优先级</translation>
    </message>
    <message>
        <source>Assign resources</source>
        <translation>分配资源</translation>
    </message>
    <message>
        <source>Change hyperlinks</source>
        <translation>更改超链接</translation>
    </message>
    <message>
        <source>Change notes</source>
        <translation>更改备注</translation>
    </message>
    <message>
        <source>Change baseline</source>
        <translation>更改基线</translation>
    </message>
    <message>
        <source>Change predecessors</source>
        <translation>更改前置任务</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>添加任务</translation>
    </message>
    <message>
        <source>%1 is no plan: %2</source>
        <translation>%1 不是计划：%2</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Next task</source>
        <translation>下一个任务</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2 上的 %1</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>另一程序</translation>
    </message>
    <message>
        <source>%1 is no plain file</source>
        <translation>%1 不是普通文件</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>the folder must exist and have room</source>
        <translation>文件夹须存在且有空间</translation>
    </message>
    <message>
        <source>Late: should be done by now</source>
        <translation>迟到：现在应已完成</translation>
    </message>
    <message>
        <source>Behind the baseline</source>
        <translation>落后于基线</translation>
    </message>
    <message>
        <source>Milestones</source>
        <translation>里程碑</translation>
    </message>
    <message>
        <source>Nobody assigned</source>
        <translation>无人分配</translation>
    </message>
    <message>
        <source>Resource: %1</source>
        <translation>资源：%1</translation>
    </message>
    <message>
        <source>ends %1, planned %2</source>
        <translation>%1 结束，计划 %2</translation>
    </message>
    <message>
        <source>%1% done, should have ended %2</source>
        <translation>已完成 %1%，应于 %2 结束</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Plans projects in working time.</source>
        <translation>按工作时间规划项目。</translation>
    </message>
    <message>
        <source>The time zone of the plan.</source>
        <translation>计划的时区。</translation>
    </message>
    <message>
        <source>The language of the program.</source>
        <translation>程序的语言。</translation>
    </message>
    <message>
        <source>Begins with an empty plan.</source>
        <translation>以空白计划开始。</translation>
    </message>
    <message>
        <source>Prints what each key does.</source>
        <translation>列出每个按键的作用。</translation>
    </message>
    <message>
        <source>Prints this.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Prints the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>The plan to open.</source>
        <translation>要打开的计划。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[选项]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>参数：</translation>
    </message>
    <message>
        <source>kwgantt-desktop --help lists all options</source>
        <translation>kwgantt-desktop --help 列出所有选项</translation>
    </message>
    <message>
        <source>there is no screen here</source>
        <translation>这里没有屏幕</translation>
    </message>
    <message>
        <source>kwgantt works without one: kwgantt help</source>
        <translation>kwgantt 不需要屏幕：kwgantt help</translation>
    </message>
    <message>
        <source>State of the plan</source>
        <translation>计划状态</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>%1[*] – kwgantt</source>
        <translation>%1[*] – kwgantt</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销 %1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做 %1(&amp;R)</translation>
    </message>
    <message>
        <source>1 task</source>
        <translation>1 个任务</translation>
    </message>
    <message>
        <source>ends %1</source>
        <translation>完成于 %1</translation>
    </message>
    <message>
        <source>%1 of them shown</source>
        <translation>显示其中 %1 个</translation>
    </message>
    <message>
        <source>%1 chosen</source>
        <translation>选中 %1 个</translation>
    </message>
    <message>
        <source>also open in %1</source>
        <translation>同时在 %1 中打开</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>there is nothing to paste</source>
        <translation>没有可粘贴的内容</translation>
    </message>
    <message>
        <source>copy tasks or lines of text first</source>
        <translation>请先复制任务或文字行</translation>
    </message>
    <message>
        <source>Plans (*.kwpx *.csv *.xlsx *.xls *.xml);;All files (*)</source>
        <translation>计划 (*.kwpx *.csv *.xlsx *.xls *.xml);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Plan.kwpx</source>
        <translation>计划.kwpx</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Packages (*.kwpx)</source>
        <translation>包 (*.kwpx)</translation>
    </message>
    <message>
        <source>%1 is no name of a package (.kwpx): Export writes other formats</source>
        <translation>%1 不是包的名称 (.kwpx)：其他格式请用“导出”</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;PNG (*.png);;SVG (*.svg);;Page for a browser (*.html);;Workbook (*.xlsx *.xls);;Project XML (*.xml);;CSV, with files beside it (*.csv)</source>
        <translation>PDF (*.pdf);;PNG (*.png);;SVG (*.svg);;浏览器网页 (*.html);;工作簿 (*.xlsx *.xls);;项目 XML (*.xml);;CSV，带附属文件 (*.csv)</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>打开它</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>正在绘制…</translation>
    </message>
    <message>
        <source>Files beside %1 are replaced as well.</source>
        <translation>%1 旁边的文件也会被替换。</translation>
    </message>
    <message>
        <source>a file of that name has no format: use pdf, png, svg, html, xlsx, xls, xml or csv</source>
        <translation>此名称的文件没有格式：请用 pdf、png、svg、html、xlsx、xls、xml 或 csv</translation>
    </message>
    <message>
        <source>Beside it: %1.</source>
        <translation>旁边还有：%1。</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>The sheet went to %1.</source>
        <translation>该页已送至 %1。</translation>
    </message>
    <message>
        <source>The sheets went to %1.</source>
        <translation>各页已送至 %1。</translation>
    </message>
    <message>
        <source>cancelled: not everything is printed</source>
        <translation>已取消：未全部打印</translation>
    </message>
    <message>
        <source>%1 did not print</source>
        <translation>%1 未能打印</translation>
    </message>
    <message>
        <source>The working time has changed: no task moves</source>
        <translation>工作时间已更改：没有移动任务</translation>
    </message>
    <message>
        <source>The working time has changed: one task moved</source>
        <translation>工作时间已更改：移动 1 个任务</translation>
    </message>
    <message>
        <source>The working time has changed: %1 tasks moved</source>
        <translation>工作时间已更改：移动 %1 个任务</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>About kwgantt</source>
        <translation>关于 kwgantt</translation>
    </message>
    <message>
        <source>kwgantt %1: plans projects in working time.</source>
        <translation>kwgantt %1：按工作时间安排项目。</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>正在打开 %1…</translation>
    </message>
    <message>
        <source>cancelled: the plan that was open stays</source>
        <translation>已取消：原来打开的计划保留</translation>
    </message>
    <message>
        <source>%1 tasks had no start and were scheduled.</source>
        <translation>%1 个任务没有开始时间，已排程。</translation>
    </message>
    <message>
        <source>One task starts before a task that it waits for ends.</source>
        <translation>有一个任务在所等待的任务完成前开始。</translation>
    </message>
    <message>
        <source>%1 tasks start before a task that they wait for ends.</source>
        <translation>%1 个任务在所等待的任务完成前开始。</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>排程</translation>
    </message>
    <message>
        <source>The plan is also open in %1: whoever saves last wins.</source>
        <translation>计划也在 %1 中打开：以最后保存者为准。</translation>
    </message>
    <message>
        <source>Three tasks to try things on: type over a name, drag a bar, draw from one bar to another. Ctrl+Shift+P finds every command.</source>
        <translation>三个任务供试用：改写名称、拖动条形、从一个条形画到另一个。Ctrl+Shift+P 可查找所有命令。</translation>
    </message>
    <message>
        <source>%1 was open when the program ended without closing it.</source>
        <translation>程序结束时 %1 尚未关闭。</translation>
    </message>
    <message>
        <source>There is a copy of %1, with what had not been saved. Open it? Discard takes it away, Cancel keeps it for the next start.</source>
        <translation>有一份 %1 的副本，含未保存的内容。要打开吗？“放弃”删除它，“取消”保留到下次启动。</translation>
    </message>
    <message>
        <source>The file itself was written since it was opened.</source>
        <translation>文件本身在打开之后已被写过。</translation>
    </message>
    <message>
        <source>cancelled: the copy is kept</source>
        <translation>已取消：副本保留</translation>
    </message>
    <message>
        <source>This is the copy of a plan that was never saved.</source>
        <translation>这是一份从未保存过的计划的副本。</translation>
    </message>
    <message>
        <source>This is the copy. Its file was written by another program since.</source>
        <translation>这是副本。它的文件此后已被另一个程序写过。</translation>
    </message>
    <message>
        <source>This is the copy. Saving it replaces the plan's own file.</source>
        <translation>这是副本。保存会替换计划自身的文件。</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>保存对 %1 的更改吗？</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened.</source>
        <translation>%1 打开后被另一程序更改。</translation>
    </message>
    <message>
        <source>Saving replaces what was written there.</source>
        <translation>保存会替换那里写入的内容。</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>已保存。</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 被另一程序更改。</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>重新打开</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>保留我的</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>暂无</translation>
    </message>
    <message>
        <source>It waits for no other task.</source>
        <translation>它不等待其他任务。</translation>
    </message>
    <message>
        <source>no task has %1 in it</source>
        <translation>没有任务含有 %1</translation>
    </message>
    <message>
        <source>Go to row</source>
        <translation>转到行</translation>
    </message>
    <message>
        <source>Number of the task:</source>
        <translation>任务编号：</translation>
    </message>
    <message>
        <source>No texts beside bars</source>
        <translation>条形旁不显示文字</translation>
    </message>
    <message>
        <source>Names beside bars</source>
        <translation>条形旁显示名称</translation>
    </message>
    <message>
        <source>Resources beside bars</source>
        <translation>条形旁显示资源</translation>
    </message>
    <message>
        <source>Dates beside bars</source>
        <translation>条形旁显示日期</translation>
    </message>
    <message>
        <source>the task has no hyperlink</source>
        <translation>该任务没有超链接</translation>
    </message>
    <message>
        <source>the column of hyperlinks takes addresses</source>
        <translation>可在超链接列中填写地址</translation>
    </message>
    <message>
        <source>Open link</source>
        <translation>打开链接</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>%1 is not opened</source>
        <translation>不打开 %1</translation>
    </message>
    <message>
        <source>only pages (http, https, ftp) and mail addresses are</source>
        <translation>只打开网页（http、https、ftp）和邮件地址</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>已打开 %1。</translation>
    </message>
    <message>
        <source>no program here opens %1</source>
        <translation>这里没有程序能打开 %1</translation>
    </message>
    <message>
        <source>Insert task</source>
        <translation>插入任务</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>%1 tasks are deleted, %2 of them were not shown</source>
        <translation>已删除 %1 个任务，其中 %2 个未显示</translation>
    </message>
    <message>
        <source>The tasks below it stay, one level up; Cut takes them along</source>
        <translation>其下的任务保留并上移一级；剪切会一并带走</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Indent</source>
        <translation>降级</translation>
    </message>
    <message>
        <source>Outdent</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Link tasks</source>
        <translation>链接任务</translation>
    </message>
    <message>
        <source>Unlink tasks</source>
        <translation>取消任务链接</translation>
    </message>
    <message>
        <source>Make milestone</source>
        <translation>设为里程碑</translation>
    </message>
    <message>
        <source>Make task</source>
        <translation>设为任务</translation>
    </message>
    <message>
        <source>no name and no note has %1 in it</source>
        <translation>没有名称或备注包含 %1</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Replaced in one task.</source>
        <translation>已在一个任务中替换。</translation>
    </message>
    <message>
        <source>Replaced in %1 tasks.</source>
        <translation>已在 %1 个任务中替换。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Nothing moves: no task starts before those it waits for have ended.</source>
        <translation>没有任务移动：没有任务在其所等待的任务结束之前开始。</translation>
    </message>
    <message>
        <source>Close gaps</source>
        <translation>消除间隙</translation>
    </message>
    <message>
        <source>Nothing moves: every linked task starts as soon as it can, or has begun.</source>
        <translation>没有任务移动：每个有链接的任务都已尽早开始，或者已经开始。</translation>
    </message>
    <message>
        <source>Set baseline</source>
        <translation>设置基线</translation>
    </message>
    <message>
        <source>The dates of all tasks are the baseline now.</source>
        <translation>所有任务的日期现已成为基线。</translation>
    </message>
    <message>
        <source>The dates of %1 tasks are their baseline now.</source>
        <translation>%1 个任务的日期现已成为其基线。</translation>
    </message>
    <message>
        <source>%1 moves to %2</source>
        <translation>%1 移到 %2</translation>
    </message>
    <message>
        <source>, pushed by %1</source>
        <translation>，被 %1 推迟</translation>
    </message>
    <message>
        <source> with its summary</source>
        <translation> 随摘要任务</translation>
    </message>
    <message>
        <source>%1 more move</source>
        <translation>另有 %1 个移动</translation>
    </message>
    <message>
        <source>The project ends %1 (before: %2)</source>
        <translation>项目完成于 %1（原为 %2）</translation>
    </message>
    <message>
        <source>%1 loses its resource %2</source>
        <translation>%1 失去资源 %2</translation>
    </message>
    <message>
        <source>%1 does not wait for %2 any more</source>
        <translation>%1 不再等待 %2</translation>
    </message>
    <message>
        <source>Start by</source>
        <translation>开始偏差</translation>
    </message>
    <message>
        <source>Finish by</source>
        <translation>完成偏差</translation>
    </message>
    <message>
        <source>Cost by</source>
        <translation>成本偏差</translation>
    </message>
    <message>
        <source>Compared with the baseline</source>
        <translation>与基线的比较</translation>
    </message>
    <message>
        <source>There is no baseline: Set baseline remembers one.</source>
        <translation>没有基线：“设置基线”会记下一份。</translation>
    </message>
    <message>
        <source>All tasks are where the baseline has them.</source>
        <translation>所有任务都与基线一致。</translation>
    </message>
    <message>
        <source>One task is not where the baseline has it.</source>
        <translation>1 个任务与基线不一致。</translation>
    </message>
    <message>
        <source>%1 tasks are not where the baseline has them.</source>
        <translation>%1 个任务与基线不一致。</translation>
    </message>
    <message>
        <source>Dates of the chart</source>
        <translation>图表的日期</translation>
    </message>
    <message>
        <source>Drag sideways, or turn the wheel, to zoom</source>
        <translation>横向拖动或转动滚轮以缩放</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Hide the other tasks</source>
        <translation>隐藏其他任务</translation>
    </message>
    <message>
        <source>Which tasks</source>
        <translation>哪些任务</translation>
    </message>
    <message>
        <source>Tasks found</source>
        <translation>找到的任务</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>……另有 %1 个</translation>
    </message>
    <message>
        <source>Findings (%1)</source>
        <translation>问题 (%1)</translation>
    </message>
    <message>
        <source>Close the note</source>
        <translation>关闭提示</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>Move task</source>
        <translation>移动任务</translation>
    </message>
    <message>
        <source>Moved “%1” to %2</source>
        <translation>“%1” 移到 %2</translation>
    </message>
    <message>
        <source>“%1” lasts %2 now, %3</source>
        <translation>“%1” 工期现为 %2，%3</translation>
    </message>
    <message>
        <source>“%1” is %2% done</source>
        <translation>“%1” 已完成 %2%</translation>
    </message>
    <message>
        <source>Draw to the task that is to wait for “%1”</source>
        <translation>拖到要等待 “%1” 的任务</translation>
    </message>
    <message>
        <source>“%1” waits for “%2” now</source>
        <translation>“%1” 现在等待 “%2”</translation>
    </message>
    <message>
        <source>pushes %1 tasks: %2 and more</source>
        <translation>推迟 %1 个任务：%2 等</translation>
    </message>
    <message>
        <source>pushes %1</source>
        <translation>推迟 %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> 和 </translation>
    </message>
    <message>
        <source>critical: a delay moves the finish of the project</source>
        <translation>关键：延误会推迟项目完成</translation>
    </message>
    <message>
        <source>slack: %1</source>
        <translation>浮动时间：%1</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>新任务</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translation>任务表</translation>
    </message>
    <message>
        <source>the numbers of the rows are counted, not typed</source>
        <translation>行号由程序计数，不能输入</translation>
    </message>
    <message>
        <source>names go into the column beside them; Alt+Up and Alt+Down move a task</source>
        <translation>名称写在旁边一列；Alt+Up 和 Alt+Down 移动任务</translation>
    </message>
    <message>
        <source>%1 is worked out from the other columns</source>
        <translation>%1 由其他列算出</translation>
    </message>
    <message>
        <source>Change row height</source>
        <translation>更改行高</translation>
    </message>
    <message>
        <source>Change column width</source>
        <translation>更改列宽</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>移动列</translation>
    </message>
    <message>
        <source>Hide column</source>
        <translation>隐藏列</translation>
    </message>
    <message>
        <source>Show column</source>
        <translation>显示列</translation>
    </message>
    <message>
        <source>Type here for a new task</source>
        <translation>在此键入新任务</translation>
    </message>
    <message>
        <source>Why is it when it is?</source>
        <translation>为何在此时？</translation>
    </message>
    <message>
        <source>&lt;p&gt;Choose a task: here it says what it waits for, what waits for it, and whether a delay moves the end of the project.&lt;/p&gt;</source>
        <translation>&lt;p&gt;请选择任务：此处说明它等待什么、什么等待它，以及延误是否推迟项目完成。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Titles of the columns</source>
        <translation>列标题</translation>
    </message>
    <message>
        <source>Drag a border to change a width, a title to move its column; right-click for all columns</source>
        <translation>拖动边界改变列宽，拖动标题移动列；右键单击显示所有列</translation>
    </message>
</context>
</TS>
